// SPDX-License-Identifier: MIT
#include "UpdateCheckerViewModel.h"

#include "Literals.h"

#include <QPointer>

namespace abissora {

namespace {

QString textFor(const UpdateCheckFailure& failure)
{
    if (const auto* error = std::get_if<UpdateCheckError>(&failure))
        return error->errorDescription();
    return u"Impossibile contattare il sito dell'applicazione."_s;
}

} // namespace

UpdateCheckerViewModel::UpdateCheckerViewModel(const UpdateChecker& checker, const Clock& clock, QObject* parent)
    : StateObject(parent)
    , m_checker(checker)
    , m_clock(clock)
{}

QCoro::Task<std::optional<UpdateInfo>> UpdateCheckerViewModel::checkForUpdates(CheckReason reason)
{
    const QPointer<UpdateCheckerViewModel> alive(this);
    setChecking(true);
    setLastError(std::nullopt);
    setAvailableUpdate(std::nullopt);

    const UpdateCheckResult result = co_await m_checker.checkForUpdates();
    if (!alive)
        co_return std::nullopt;
    if (result) {
        m_foundBy = reason;
        setAvailableUpdate(*result);
        setLastCheckedAt(m_clock.now());
    } else {
        setLastError(textFor(result.error()));
    }
    setChecking(false);
    co_return result.value_or(std::nullopt);
}

void UpdateCheckerViewModel::clearAvailableUpdate()
{
    setAvailableUpdate(std::nullopt);
}

void UpdateCheckerViewModel::setChecking(bool checking)
{
    m_isChecking = checking;
    announce(&UpdateCheckerViewModel::isCheckingChanged);
}

void UpdateCheckerViewModel::setAvailableUpdate(const std::optional<UpdateInfo>& update)
{
    m_availableUpdate = update;
    announce(&UpdateCheckerViewModel::availableUpdateChanged);
}

void UpdateCheckerViewModel::setLastError(const std::optional<QString>& error)
{
    m_lastError = error;
    announce(&UpdateCheckerViewModel::lastErrorChanged);
}

void UpdateCheckerViewModel::setLastCheckedAt(Instant instant)
{
    m_lastCheckedAt = instant;
    announce(&UpdateCheckerViewModel::lastCheckedAtChanged);
}

} // namespace abissora
