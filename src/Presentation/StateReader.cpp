// SPDX-License-Identifier: MIT
#include "StateReader.h"

#include <QPointer>
#include <cerrno>

namespace abissora {

namespace {

constexpr qsizetype mostAsked = 32; ///< more than are in sight at once

/// A stored date has no milliseconds: unless both are as if stored, every item of this run would have changed.
QList<Equipment> asStored(const QList<Equipment>& equipment)
{
    const auto json = encode(equipment);
    const auto decoded = json ? decodeEquipment(*json) : tl::unexpected(json.error());
    return decoded ? *decoded : equipment;
}

// Made outside the coroutine: what it waits for shall capture nothing of its frame.
LongWork::Function reading(const EarlierState& state, const QList<Equipment>& present,
                           const std::optional<QList<Equipment>>& presentAsStored,
                           const std::shared_ptr<ReadState>& result)
{
    return [=](WorkProgress& progress) -> IoResult<void> {
        if (progress.isCancelled())
            return tl::unexpected(IoError::fromErrno(ECANCELED));
        result->present = presentAsStored ? *presentAsStored : asStored(present);
        result->content = readContent(state);
        return {};
    };
}

} // namespace

StateReader::StateReader(LongWork& work, QList<Equipment> present, QObject* parent)
    : QObject(parent)
    , m_work(work)
    , m_present(std::move(present))
{}

StateReader::~StateReader()
{
    m_progress->cancel();
}

void StateReader::ask(const EarlierState& state)
{
    m_asked.removeOne(state);
    m_asked.append(state);
    if (m_asked.size() > mostAsked)
        m_asked.removeFirst();
    QMetaObject::invokeMethod(this, &StateReader::readAsked, Qt::QueuedConnection);
}

QCoro::Task<> StateReader::readAsked()
{
    if (std::exchange(m_isReading, true))
        co_return;
    const QPointer<StateReader> alive(this);
    const QString nothingToShow;
    while (!m_asked.isEmpty()) {
        const EarlierState state = m_asked.takeLast();
        const auto result = std::make_shared<ReadState>();
        const LongWork::Function work = reading(state, m_present, m_presentAsStored, result);
        const IoResult<void> done = co_await m_work.run(nothingToShow, work, m_progress);
        if (!alive || !done)
            co_return;
        m_presentAsStored = result->present;
        Q_EMIT read(state, *result);
        if (!alive)
            co_return;
    }
    m_isReading = false;
}

} // namespace abissora
