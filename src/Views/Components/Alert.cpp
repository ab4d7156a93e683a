// SPDX-License-Identifier: MIT
#include "Alert.h"

#include "Accessibility.h"
#include "Assembly.h"
#include "Buttons.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "TypeScale.h"

#include <QBoxLayout>

namespace abissora {

namespace {

constexpr int alertWidth = 400;

} // namespace

Alert::Alert(Kind kind, const QString& title, const QString& message, QWidget* parent)
    : SheetWindow(parent)
    , m_message(new WrapLabel(TextStyle::Body, &Tokens::secondaryText, message))
    , m_safe(named(new PlainButton(kind == Kind::Notice ? u"OK"_s : u"Annulla"_s), u"safe"_s))
    , m_destructive(named(new DestructiveButton(u"Elimina"_s), u"destructive"_s))
{
    setAccessibleRole(*this, QAccessible::AlertMessage);
    setAccessibleDescription(message);
    setWindowTitle(title);
    m_message->setAlignment(Qt::AlignTop);
    m_safe->setDefault(true);
    m_destructive->setVisible(kind == Kind::Question);
    setLayout(inColumn(metrics::spaceS,
                       {
                           new WrapLabel(TextStyle::Headline, &Tokens::text, title),
                           m_message,
                           Gap{metrics::spaceM},
                           inRow(metrics::spaceS, {Stretch(), m_safe, m_destructive}),
                       },
                       {metrics::spaceXL, metrics::spaceXL - 4, metrics::spaceXL, metrics::spaceXL - 4}));

    // The person shall see which button Return presses, however the alert was opened.
    setAttribute(Qt::WA_KeyboardFocusChange);
    connect(m_safe, &QAbstractButton::clicked, this, &QDialog::reject);
    connect(m_destructive, &QAbstractButton::clicked, this, &QDialog::accept);
}

Alert* Alert::ask(QWidget* place, const QString& title, const QString& message, const std::function<void()>& accepted)
{
    auto* alert = new Alert(Kind::Question, title, message, place);
    alert->setAttribute(Qt::WA_DeleteOnClose);
    connect(alert, &QDialog::accepted, place, accepted);
    alert->open();
    return alert;
}

Alert* Alert::notice(QWidget* place, const QString& title, const QString& message)
{
    auto* alert = new Alert(Kind::Notice, title, message, place);
    alert->setAttribute(Qt::WA_DeleteOnClose);
    alert->open();
    return alert;
}

QString Alert::message() const
{
    return m_message->text();
}

QSize Alert::preferredSize() const
{
    const int width = withText(alertWidth, fontMetrics());
    return {width, layout()->totalHeightForWidth(width)};
}

QWidget* Alert::firstFocus() const
{
    return m_safe;
}

} // namespace abissora
