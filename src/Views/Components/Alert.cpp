// SPDX-License-Identifier: MIT
#include "Alert.h"

#include "Accessibility.h"
#include "Buttons.h"
#include "Literals.h"
#include "Metrics.h"
#include "TypeScale.h"
#include "WrapLabel.h"

#include <QHBoxLayout>

namespace abissora {

namespace {

constexpr int alertWidth = 400;

} // namespace

Alert::Alert(QWidget* parent)
    : SheetWindow(parent)
    , m_title(new WrapLabel(TextStyle::Headline, &Tokens::text))
    , m_message(new WrapLabel(TextStyle::Body, &Tokens::secondaryText))
    , m_safe(new PlainButton(u"Annulla"_s))
    , m_destructive(new DestructiveButton(u"Elimina"_s))
{
    provideAccessibility();
    m_message->setAlignment(Qt::AlignTop);
    m_safe->setObjectName(u"safe"_s);
    m_safe->setDefault(true);
    m_destructive->setObjectName(u"destructive"_s);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(metrics::spaceS);
    buttons->addStretch();
    buttons->addWidget(m_safe);
    buttons->addWidget(m_destructive);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(metrics::spaceXL, metrics::spaceXL - 4, metrics::spaceXL, metrics::spaceXL - 4);
    layout->setSpacing(metrics::spaceS);
    layout->addWidget(m_title);
    layout->addWidget(m_message);
    layout->addSpacing(metrics::spaceM);
    layout->addLayout(buttons);

    // The person shall see which button Return presses, however the alert was opened.
    setAttribute(Qt::WA_KeyboardFocusChange);
    connect(m_safe, &QAbstractButton::clicked, this, &QDialog::reject);
    connect(m_destructive, &QAbstractButton::clicked, this, &QDialog::accept);
}

void Alert::setTitle(const QString& title)
{
    setWindowTitle(title);
    m_title->setText(title);
}

void Alert::setMessage(const QString& message)
{
    m_message->setText(message);
    setAccessibleDescription(message);
}

QString Alert::message() const
{
    return m_message->text();
}

void Alert::makeNotice(const QString& buttonText)
{
    m_destructive->hide();
    m_safe->setText(buttonText);
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
