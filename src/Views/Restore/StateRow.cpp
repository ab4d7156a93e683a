// SPDX-License-Identifier: MIT
#include "StateRow.h"

#include "Accessibility.h"
#include "Assembly.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "Painting.h"
#include "SymbolIcon.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

namespace abissora {

namespace {

constexpr int dayMargin = metrics::spaceS;
constexpr int padding = 10;
constexpr int symbolSide = 12;
constexpr std::array styles{TextStyle::BodyMedium, TextStyle::Callout, TextStyle::Caption};

QFont fontOf(int line)
{
    return font(styles.at(static_cast<std::size_t>(line)));
}

int lineHeight(int line)
{
    return QFontMetrics(fontOf(line)).height() + (line == 2 ? 2 : 1);
}

} // namespace

StateButton::StateButton(QWidget* parent)
    : QAbstractButton(parent)
{
    setAccessibleChoice(*this);
    setObjectName(u"state"_s);
    setCheckable(true);
    setAutoExclusive(false);
    setFocusPolicy(Qt::ClickFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void StateButton::setState(const EarlierStateRow& state)
{
    m_state = state;
    setText(state.when);
    setAccessibleName(lines().join(u", "_s));
    update();
}

void StateButton::setChosen(bool chosen)
{
    setChecked(chosen);
    setFocusPolicy(chosen ? Qt::StrongFocus : Qt::ClickFocus);
}

QSize StateButton::sizeHint() const
{
    int height = 2 * (padding - 2);
    for (int line = 0; line < static_cast<int>(styles.size()); ++line)
        height += lineHeight(line);
    return {QFontMetrics(fontOf(0)).averageCharWidth() * 16, height};
}

QRect StateButton::lineRect(int line) const
{
    int top = padding - 2;
    for (int above = 0; above < line; ++above)
        top += lineHeight(above);
    const int left = line == 2 ? padding + symbolSide + metrics::spaceXS + 1 : padding;
    return {left, top, width() - left - padding, lineHeight(line)};
}

bool StateButton::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const QStringList all = lines();
        QString tip;
        for (int line = 0; line < all.size(); ++line) {
            const QFontMetrics metrics(fontOf(line));
            if (metrics.horizontalAdvance(all.at(line)) > lineRect(line).width())
                tip = toolTipText(all.join(u'\n'));
        }
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tip, this);
        return true;
    }
    return QAbstractButton::event(event);
}

void StateButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const Tokens& tokens = Tokens::of(palette());
    if (isChecked())
        drawPanel(painter, rect(), metrics::controlRadius, tokens.selection, {});
    else if (underMouse() || isDown())
        drawPanel(painter, rect(), metrics::controlRadius, mix(tokens.surface, tokens.text, isDown() ? 0.1 : 0.05), {});
    if (showsFocusRing(*this))
        drawFocusRing(painter, rect(), metrics::controlRadius, palette());

    // The colour of warnings is no text on the ground of what is chosen; it is a symbol there.
    const QColor warning = isChecked() ? tokens.text : tokens.warning;
    const std::array inks{tokens.text, tokens.secondaryText, m_state.isWarning ? warning : tokens.secondaryText};
    const QStringList all = lines();
    for (int line = 0; line < all.size(); ++line) {
        painter.setFont(fontOf(line));
        painter.setPen(inks.at(static_cast<std::size_t>(line)));
        const QRect room = lineRect(line);
        painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                         painter.fontMetrics().elidedText(all.at(line), Qt::ElideRight, room.width()));
    }
    QRect symbol(padding, 0, symbolSide, symbolSide);
    symbol.moveTop(lineRect(2).center().y() - symbolSide / 2);
    symbolIcon(m_state.symbol, m_state.isWarning ? tokens.warning : tokens.secondaryText).paint(&painter, symbol);
}

void StateButton::focusInEvent(QFocusEvent* event)
{
    QAbstractButton::focusInEvent(event);
    const bool byKey = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (byKey && !isChecked())
        click();
}

void StateButton::keyPressEvent(QKeyEvent* event)
{
    // What is chosen stays so.
    if (isChecked() && (event->key() == Qt::Key_Space || event->key() == Qt::Key_Select))
        return;
    QAbstractButton::keyPressEvent(event);
}

void StateButton::enterEvent(QEnterEvent* event)
{
    QAbstractButton::enterEvent(event);
    update();
}

void StateButton::leaveEvent(QEvent* event)
{
    QAbstractButton::leaveEvent(event);
    update();
}

StateRow::StateRow(QWidget* parent)
    : QWidget(parent)
    , m_title(named(new InkLabel(TextStyle::CaptionSemibold, &Tokens::secondaryText), u"stateGroup"))
    , m_button(new StateButton)
{
    m_title->setContentsMargins(padding, metrics::spaceS + 2, padding, metrics::spaceXS + 1);
    m_title->hide();
    setLayout(inColumn(0, {m_title, m_button}, {dayMargin, 0, dayMargin, 0}));
}

void StateRow::setGroupTitle(const QString& title)
{
    m_title->setText(title);
    m_title->setVisible(!title.isEmpty());
    setAccessibleName(title);
}

} // namespace abissora
