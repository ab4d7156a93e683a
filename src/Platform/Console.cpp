// SPDX-License-Identifier: MIT
#include "Console.h"

#include "Literals.h"

#include <QSocketNotifier>
#include <QThread>

namespace abissora {

namespace {

constexpr int standardOutput = 1;

QByteArray notice(qsizetype omitted)
{
    const QString lines = omitted == 1 ? u"1 riga omessa"_s : u"%1 righe omesse"_s.arg(omitted);
    return (u"… "_s + lines + u": chi legge non tiene il passo\n"_s).toUtf8();
}

} // namespace

StandardOutput::StandardOutput()
    : StandardOutput(standardOutput)
{}

StandardOutput::StandardOutput(int descriptor, ReaderAllowance allowance)
    : m_output(descriptor)
    , m_allowance(allowance)
{}

StandardOutput::~StandardOutput()
{
    settle();
}

void StandardOutput::settle()
{
    const QDeadlineTimer deadline(m_allowance.patience);
    writeKept();
    while (!m_kept.isEmpty() && m_output.waitForRoom(deadline))
        writeKept();
}

void StandardOutput::print(const QString& text)
{
    writeKept();
    if (m_broken)
        return;
    QByteArray lines = text.toUtf8();
    lines.append('\n');
    take(lines);
}

void StandardOutput::take(QByteArrayView lines)
{
    while (!lines.isEmpty() && !m_broken) {
        const qsizetype size = fitting(lines);
        if (size == 0) {
            m_omitted += lines.count('\n');
            return;
        }
        m_kept.append(lines.first(size));
        lines = lines.sliced(size);
        writeKept();
    }
}

qsizetype StandardOutput::fitting(QByteArrayView lines) const
{
    if (m_omitted > 0)
        return 0; // those before would be missing in between
    const qsizetype room = m_allowance.kept - m_kept.size();
    if (lines.size() <= room)
        return lines.size();
    const qsizetype size = room > 0 ? lines.first(room).lastIndexOf('\n') + 1 : 0;
    return size == 0 && m_kept.isEmpty() ? lines.indexOf('\n') + 1 : size;
}

void StandardOutput::writeKept()
{
    qsizetype done = 0;
    while (done < m_kept.size()) {
        const auto written = m_output.write(QByteArrayView(m_kept).sliced(done));
        if (!written)
            return forget();
        if (*written == 0)
            break;
        done += *written;
        if (done == m_kept.size() && m_omitted > 0)
            m_kept.append(notice(std::exchange(m_omitted, 0)));
    }
    m_kept.remove(0, done);
    watchForRoom(!m_kept.isEmpty());
}

void StandardOutput::forget()
{
    m_broken = true;
    m_kept.clear();
    m_omitted = 0;
    watchForRoom(false);
}

void StandardOutput::watchForRoom(bool watch)
{
    if (watch && m_allowance.watched && !m_room && QThread::currentThread()->eventDispatcher() != nullptr) {
        m_room = std::make_unique<QSocketNotifier>(m_output.descriptor(), QSocketNotifier::Write);
        QObject::connect(m_room.get(), &QSocketNotifier::activated, m_room.get(), [this] { writeKept(); });
    }
    if (m_room)
        m_room->setEnabled(watch);
}

} // namespace abissora
