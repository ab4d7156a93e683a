// SPDX-License-Identifier: MIT
#pragma once

#include "Console.h"
#include "PreferencesStore.h"

#include <QObject>
#include <QTimer>

namespace abissora {

/// Writes once more what could not be stored, until it could: two seconds after a failure, then after twice as long
/// each time, at the latest every minute, and whenever it is told. The log tells what was stored after all.
class SaveRetry : public QObject
{
    Q_OBJECT

public:
    /// Everything passed by reference must outlive it. The store tells nobody else of its failures.
    SaveRetry(PreferencesStore& preferences, Console& console, QObject* parent = nullptr);
    ~SaveRetry() override;

    /// Now, because the program came forward or is about to end. True when nothing is left.
    bool retry();

    [[nodiscard]] std::chrono::milliseconds delay() const { return m_delay; }
    [[nodiscard]] bool isWaiting() const { return m_timer.isActive(); }

    static constexpr std::chrono::milliseconds firstDelay{2'000};
    static constexpr std::chrono::milliseconds longestDelay{60'000};

private:
    void wait(std::chrono::milliseconds delay);

    PreferencesStore& m_preferences;
    Console& m_console;
    QTimer m_timer;
    std::chrono::milliseconds m_delay = firstDelay; ///< of the wait that is under way or comes next
};

} // namespace abissora
