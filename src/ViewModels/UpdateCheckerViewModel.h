// SPDX-License-Identifier: MIT
#pragma once

#include "StateObject.h"
#include "UpdateChecker.h"

namespace abissora {

/// Runs the check for updates and publishes its progress and outcome. Nothing is stored.
/// Who wanted a check: it decides where a newer release is offered, so that one check gives one offer.
enum class CheckReason {
    Person,
    Start, ///< the setting to check at start
};

class UpdateCheckerViewModel : public StateObject
{
    Q_OBJECT

public:
    /// Both must outlive it.
    UpdateCheckerViewModel(const UpdateChecker& checker, const Clock& clock, QObject* parent = nullptr);

    [[nodiscard]] bool isChecking() const { return m_isChecking; }
    /// The newer release that the last check found.
    [[nodiscard]] const std::optional<UpdateInfo>& availableUpdate() const { return m_availableUpdate; }
    /// Why that check was made.
    [[nodiscard]] CheckReason foundBy() const { return m_foundBy; }
    /// A sentence for the user about the last check, when it failed.
    [[nodiscard]] const std::optional<QString>& lastError() const { return m_lastError; }
    /// When the last successful check finished.
    [[nodiscard]] const std::optional<Instant>& lastCheckedAt() const { return m_lastCheckedAt; }

    /// Gives the newer release, if any. A second check may begin while one is under way: each publishes its outcome
    /// when it ends. Should this object go away first, the result is nothing.
    QCoro::Task<std::optional<UpdateInfo>> checkForUpdates(CheckReason reason = CheckReason::Person);

    /// The offer was dismissed.
    void clearAvailableUpdate();

Q_SIGNALS:
    void isCheckingChanged();
    void availableUpdateChanged();
    void lastErrorChanged();
    void lastCheckedAtChanged();

private:
    void setChecking(bool checking);
    void setAvailableUpdate(const std::optional<UpdateInfo>& update);
    void setLastError(const std::optional<QString>& error);
    void setLastCheckedAt(Instant instant);

    const UpdateChecker& m_checker;
    const Clock& m_clock;
    bool m_isChecking = false;
    std::optional<UpdateInfo> m_availableUpdate;
    CheckReason m_foundBy = CheckReason::Person;
    std::optional<QString> m_lastError;
    std::optional<Instant> m_lastCheckedAt;
};

} // namespace abissora
