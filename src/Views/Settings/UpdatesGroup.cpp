// SPDX-License-Identifier: MIT
#include "UpdatesGroup.h"

#include "CheckButton.h"
#include "ForeignText.h"
#include "IconLabel.h"
#include "SettingsSwitch.h"
#include "SymbolIcon.h"

#include <QBoxLayout>
#include <QPointer>

namespace abissora {

UpdatesGroup::UpdatesGroup(SettingsViewModel& settings, UpdateCheckerViewModel& updates, QWidget* parent)
    : SettingsGroupBox(QStringLiteral("Aggiornamenti"), QStringLiteral("arrow.down.circle"), parent)
    , m_updates(updates)
    , m_check(new CheckButton)
    , m_feedback(new IconLabel)
{
    auto* onLaunch =
        new SettingsSwitch(QStringLiteral("Controlla aggiornamenti all'avvio"), settings,
                           &SettingsViewModel::checkForUpdatesOnLaunch, &SettingsViewModel::setCheckForUpdatesOnLaunch);
    onLaunch->setObjectName(QStringLiteral("checkForUpdatesOnLaunch"));
    m_check->setObjectName(QStringLiteral("checkForUpdates"));
    m_feedback->setObjectName(QStringLiteral("checkFeedback"));
    m_feedback->setWordWrap(true);
    addLine(onLaunch);
    addExplanation(
        QStringLiteral("Se attivo, all'avvio l'app verifica sul sito se esiste una versione più recente e la propone."),
        onLaunch);
    m_check->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    addButton(m_check);
    content()->addWidget(m_feedback);

    setFeedback(std::nullopt, false);
    redraw();
    connect(m_check, &CheckButton::checkRequested, this, &UpdatesGroup::checkForUpdatesNow);
    connect(&updates, &UpdateCheckerViewModel::isCheckingChanged, this, &UpdatesGroup::redraw);
}

QCoro::Task<> UpdatesGroup::checkForUpdatesNow()
{
    const QPointer<UpdatesGroup> alive(this);
    const int visit = m_visit;
    const std::optional<UpdateInfo> update = co_await m_updates.checkForUpdates();
    if (!alive || visit != m_visit)
        co_return;
    if (update) {
        setFeedback(QStringLiteral("Versione ") + shownRelease(*update) + QStringLiteral(" disponibile"), false);
    } else if (const std::optional<QString> error = m_updates.lastError()) {
        setFeedback(error, true);
    } else {
        setFeedback(QStringLiteral("Hai già l'ultima versione"), false);
    }
}

void UpdatesGroup::forgetFeedback()
{
    ++m_visit;
    setFeedback(std::nullopt, false);
}

void UpdatesGroup::setFeedback(const std::optional<QString>& text, bool isError)
{
    m_checkFeedback = text;
    m_feedbackIsError = isError;
    m_feedback->setText(text.value_or(QString()));
    m_feedback->setIcon(isError ? symbolIcon(QStringLiteral("exclamationmark.triangle"), NamedColor::red)
                                : symbolIcon(QStringLiteral("checkmark.circle"), NamedColor::green));
    m_feedback->setVisible(text.has_value());
}

void UpdatesGroup::redraw()
{
    m_check->setChecking(m_updates.isChecking());
}

} // namespace abissora
