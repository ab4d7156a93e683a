// SPDX-License-Identifier: MIT
#include "DivingIconButton.h"

#include "Metrics.h"
#include "Painting.h"
#include "SymbolIcon.h"
#include "Tokens.h"
#include "TypesAccessibility.h"

#include <QPainter>
#include <QStyleOption>

namespace abissora {

namespace {

constexpr int cellWidth = 58;
constexpr int cellHeight = 46;
constexpr int leastWidth = 40;
constexpr int pictureSide = 24;

} // namespace

DivingIconButton::DivingIconButton(DivingIcons icon, QWidget* parent)
    : IconButton(typeIcon(rawValue(icon)), displayName(icon), parent)
    , m_icon(icon)
{
    provideTypesAccessibility();
    setAccessibleDescription(category(icon));
    setCheckable(true);
    setAutoExclusive(true);
}

QSize DivingIconButton::sizeHint() const
{
    return {cellWidth, cellHeight};
}

QSize DivingIconButton::minimumSizeHint() const
{
    return {leastWidth, cellHeight};
}

void DivingIconButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const Tokens& tokens = Tokens::of(palette());
    QStyleOption option;
    option.initFrom(this);
    if (isDown())
        option.state |= QStyle::State_Sunken;
    drawPanel(painter, rect(), metrics::controlRadius,
              isChecked() ? tokens.accentTint : touched(tokens.surface, option),
              isChecked() ? tokens.accentInk : tokens.border);
    if (showsFocusRing(option))
        drawFocusRing(painter, rect(), metrics::controlRadius, palette());
    QRect place(0, 0, pictureSide, pictureSide);
    place.moveCenter(rect().center());
    const QIcon picture = isChecked() ? typeIcon(rawValue(m_icon), NamedColor::blue) : icon();
    picture.paint(&painter, place);
}

} // namespace abissora
