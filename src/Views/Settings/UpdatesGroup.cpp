// SPDX-License-Identifier: MIT
#include "UpdatesGroup.h"

#include "CheckButton.h"
#include "ForeignText.h"
#include "IconLabel.h"
#include "Literals.h"
#include "SettingsSwitch.h"
#include "SymbolIcon.h"

#include <QBoxLayout>
#include <QPointer>

namespace abissora {

UpdatesGroup::UpdatesGroup(SettingsViewModel& settings, UpdateCheckerViewModel& updates, QWidget* parent)
    : SettingsGroupBox(u"Aggiornamenti"_s, u"arrow.down.circle"_s, parent)
    , m_updates(updates)
    , m_check(new CheckButton)
    , m_feedback(new IconLabel)
{
    auto* onLaunch =
        new SettingsSwitch(u"Controlla aggiornamenti all'avvio"_s, settings,
                           &SettingsViewModel::checkForUpdatesOnLaunch, &SettingsViewModel::setCheckForUpdatesOnLaunch);
    onLaunch->setObjectName(u"checkForUpdatesOnLaunch"_s);
    m_check->setObjectName(u"checkForUpdates"_s);
    m_feedback->setObjectName(u"checkFeedback"_s);
    m_feedback->setWordWrap(true);
    addLine(onLaunch);
    addExplanation(u"Se attivo, all'avvio l'app verifica sul sito se esiste una versione più recente e la propone."_s,
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
        setFeedback(u"Versione "_s + shownRelease(*update) + u" disponibile"_s, false);
    } else if (const std::optional<QString> error = m_updates.lastError()) {
        setFeedback(error, true);
    } else {
        setFeedback(u"Hai già l'ultima versione"_s, false);
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
    m_feedback->setIcon(isError ? symbolIcon(u"exclamationmark.triangle"_s, NamedColor::red)
                                : symbolIcon(u"checkmark.circle"_s, NamedColor::green));
    m_feedback->setVisible(text.has_value());
}

void UpdatesGroup::redraw()
{
    m_check->setChecking(m_updates.isChecking());
}

} // namespace abissora
