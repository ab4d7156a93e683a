// SPDX-License-Identifier: MIT
#include "SaveRetry.h"

#include "Literals.h"

namespace abissora {

SaveRetry::SaveRetry(PreferencesStore& preferences, Console& console, QObject* parent)
    : QObject(parent)
    , m_preferences(preferences)
    , m_console(console)
    , m_timer(this)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        if (!retry())
            wait(std::min(m_delay * 2, longestDelay));
    });
    const auto begin = [this] {
        if (!m_timer.isActive())
            wait(firstDelay);
    };
    m_preferences.whenPending(begin);
    if (!m_preferences.pending().isEmpty())
        begin();
}

SaveRetry::~SaveRetry()
{
    m_preferences.whenPending({});
}

bool SaveRetry::retry()
{
    QStringList written = m_preferences.retry();
    written.sort();
    if (!written.isEmpty())
        m_console.print(u"💾 Salvato dopo un errore: "_s + written.join(u", "_s));
    const bool isDone = m_preferences.pending().isEmpty();
    if (isDone)
        m_timer.stop();
    return isDone;
}

void SaveRetry::wait(std::chrono::milliseconds delay)
{
    m_delay = delay;
    m_timer.start(delay);
}

} // namespace abissora
