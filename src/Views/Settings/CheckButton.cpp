// SPDX-License-Identifier: MIT
#include "CheckButton.h"

#include "Literals.h"
#include "Metrics.h"
#include "ProgressIndicator.h"

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

CheckButton::CheckButton(QWidget* parent)
    : LookButton(ButtonLook::Plain, label, parent)
    , m_indicator(new ProgressIndicator(this))
{
    m_indicator->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_indicator->setAccessibleName(busyLabel);
    dress();
    connect(this, &QAbstractButton::clicked, this, [this] {
        if (!m_checking)
            Q_EMIT checkRequested();
    });
}

void CheckButton::setChecking(bool checking)
{
    if (checking == m_checking)
        return;
    m_checking = checking;
    dress();
}

void CheckButton::dress()
{
    if (m_checking) {
        setText(busyLabel);
        setIcon(emptyIcon(iconSize()));
    } else {
        setText(label);
        setSymbol(u"arrow.clockwise"_s);
    }
    setAccessibleName(m_checking ? busyLabel : label);
    m_indicator->setVisible(m_checking);
    placeIndicator();
}

QSize CheckButton::sizeHint() const
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

void CheckButton::resizeEvent(QResizeEvent* event)
{
    LookButton::resizeEvent(event);
    placeIndicator();
}

void CheckButton::placeIndicator()
{
    QStyleOptionButton option;
    initStyleOption(&option);
    const int content = style()->sizeFromContents(QStyle::CT_PushButton, &option, {}, this).width();
    const QSize size = m_indicator->sizeHint();
    const QRect place(QPoint((width() - content) / 2 + metrics::controlPadding, (height() - size.height()) / 2), size);
    m_indicator->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
}

} // namespace abissora
