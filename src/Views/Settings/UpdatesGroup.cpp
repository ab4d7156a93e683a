// SPDX-License-Identifier: MIT
#include "UpdatesGroup.h"

#include "Accessibility.h"
#include "Buttons.h"
#include "IconViews.h"
#include "Literals.h"
#include "Metrics.h"
#include "ProgressIndicator.h"
#include "SymbolIcon.h"
#include "UpdateOffer.h"

#include <QBoxLayout>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionButton>

namespace abissora {

namespace {

const QString label = u"Controlla aggiornamenti ora"_s;
const QString busyLabel = u"Verifica in corso…"_s;

/// Keeps the place that the indicator turns in.
QIcon emptyIcon(QSize size)
{
    QPixmap nothing(size);
    nothing.fill(Qt::transparent);
    return nothing;
}

} // namespace

/// The button of the check. While one is under way its label gives way to a progress indicator and presses are
/// refused; it keeps the focus and its width.
class UpdatesGroup::CheckButton final : public LookButton
{
public:
    CheckButton()
        : LookButton(ButtonLook::Plain, label)
        , m_indicator(new ProgressIndicator(this))
    {
        m_indicator->setAttribute(Qt::WA_TransparentForMouseEvents);
        m_indicator->setAccessibleName(busyLabel);
        setChecking(false);
    }

    [[nodiscard]] bool isChecking() const { return m_checking; }
    void setChecking(bool checking);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void placeIndicator();

    ProgressIndicator* m_indicator;
    bool m_checking = false;
};

void UpdatesGroup::CheckButton::setChecking(bool checking)
{
    m_checking = checking;
    if (checking) {
        setText(busyLabel);
        setIcon(emptyIcon(iconSize()));
    } else {
        setText(label);
        setSymbol(u"arrow.clockwise"_s);
    }
    setAccessibleName(text());
    m_indicator->setVisible(checking);
    placeIndicator();
}

QSize UpdatesGroup::CheckButton::sizeHint() const
{
    QStyleOptionButton option;
    initStyleOption(&option);
    QSize widest;
    for (const bool checking : {false, true}) {
        option.text = checking ? busyLabel : label;
        widest = widest.expandedTo(style()->sizeFromContents(QStyle::CT_PushButton, &option, {}, this));
    }
    return widest;
}

void UpdatesGroup::CheckButton::resizeEvent(QResizeEvent* event)
{
    LookButton::resizeEvent(event);
    placeIndicator();
}

void UpdatesGroup::CheckButton::placeIndicator()
{
    QStyleOptionButton option;
    initStyleOption(&option);
    const int content = style()->sizeFromContents(QStyle::CT_PushButton, &option, {}, this).width();
    const QSize size = m_indicator->sizeHint();
    const QRect place(QPoint((width() - content) / 2 + metrics::controlPadding, (height() - size.height()) / 2), size);
    m_indicator->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
}

UpdatesGroup::UpdatesGroup(SettingsViewModel& settings, UpdateCheckerViewModel& updates, QWidget* parent)
    : SettingsGroupBox(u"Aggiornamenti"_s, u"arrow.down.circle"_s, parent)
    , m_updates(updates)
    , m_check(new CheckButton)
    , m_feedback(new IconLabel)
{
    auto* onLaunch =
        addSwitch(u"Controlla aggiornamenti all'avvio"_s, u"checkForUpdatesOnLaunch"_s, settings,
                  &SettingsViewModel::checkForUpdatesOnLaunch, &SettingsViewModel::setCheckForUpdatesOnLaunch);
    m_check->setObjectName(u"checkForUpdates"_s);
    m_feedback->setObjectName(u"checkFeedback"_s);
    m_feedback->setWordWrap(true);
    addExplanation(u"Se attivo, all'avvio l'app verifica sul sito se esiste una versione più recente e la propone."_s,
                   onLaunch);
    m_check->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    addButton(m_check);
    content()->addWidget(m_feedback);

    setFeedback({});
    const auto followChecking = [this] { m_check->setChecking(m_updates.isChecking()); };
    followChecking();
    connect(&updates, &UpdateCheckerViewModel::isCheckingChanged, this, followChecking);
    connect(m_check, &QAbstractButton::clicked, this, [this] {
        if (!m_check->isChecking())
            checkForUpdatesNow();
    });
}

QCoro::Task<> UpdatesGroup::checkForUpdatesNow()
{
    const QPointer<UpdatesGroup> alive(this);
    const int visit = m_visit;
    const std::optional<UpdateInfo> update = co_await m_updates.checkForUpdates();
    if (alive && visit == m_visit)
        setFeedback(CheckOutcome::of(update, m_updates.lastError()));
}

void UpdatesGroup::forgetFeedback()
{
    ++m_visit;
    setFeedback({});
}

void UpdatesGroup::setFeedback(const CheckOutcome& outcome)
{
    m_feedback->setText(outcome.text);
    m_feedback->setIcon(outcome.isError ? symbolIcon(u"exclamationmark.triangle"_s, NamedColor::red)
                                        : symbolIcon(u"checkmark.circle"_s, NamedColor::green));
    m_feedback->setVisible(!outcome.text.isEmpty());
    announce(*this, outcome.text);
}

} // namespace abissora
