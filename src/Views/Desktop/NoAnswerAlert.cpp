// SPDX-License-Identifier: MIT
#include "NoAnswerAlert.h"

#include "Accessibility.h"
#include "Assembly.h"
#include "Buttons.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "SymbolIcon.h"
#include "TypeScale.h"

#include <QMouseEvent>
#include <QWindow>

namespace abissora {

namespace {

constexpr int alertWidth = 400;

} // namespace

NoAnswerAlert::NoAnswerAlert()
    : SheetWindow(nullptr)
    , m_again(named(new PrimaryButton(u"Riprova"_s), u"again"_s))
{
    setObjectName(u"noAnswerAlert"_s);
    setAccessibleRole(*this, QAccessible::AlertMessage);
    setAccessibleDescription(sentence());
    setWindowTitle(u"Abissora"_s);
    setWindowIcon(applicationIcon());
    m_again->setDefault(true);
    auto* leave = named(new PlainButton(u"Esci"_s), u"leave"_s);
    setLayout(inColumn(metrics::spaceS,
                       {
                           named(new WrapLabel(TextStyle::Headline, &Tokens::text, sentence()), u"sentence"_s),
                           Gap{metrics::spaceM},
                           inRow(metrics::spaceS, {Stretch(), leave, m_again}),
                       },
                       {metrics::spaceXL, metrics::spaceXL - 4, metrics::spaceXL, metrics::spaceXL - 4}));

    // The person shall see which button Return presses, however the program was started.
    setAttribute(Qt::WA_KeyboardFocusChange);
    connect(m_again, &QAbstractButton::clicked, this, &QDialog::accept);
    connect(leave, &QAbstractButton::clicked, this, &QDialog::reject);
}

QString NoAnswerAlert::sentence()
{
    return u"Abissora è già aperta su questo registro, ma non risponde."_s;
}

QSize NoAnswerAlert::preferredSize() const
{
    const int width = withText(alertWidth, fontMetrics());
    return {width, layout()->totalHeightForWidth(width)};
}

QWidget* NoAnswerAlert::firstFocus() const
{
    return m_again;
}

void NoAnswerAlert::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        windowHandle()->startSystemMove();
    SheetWindow::mousePressEvent(event);
}

} // namespace abissora
