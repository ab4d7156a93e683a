// SPDX-License-Identifier: MIT
#include "Separator.h"

#include "Accessibility.h"
#include "Painting.h"
#include "Tokens.h"

#include <QPainter>

namespace abissora {

Separator::Separator(Weight weight, QWidget* parent)
    : QWidget(parent)
    , m_weight(weight)
{
    setAccessibleRole(*this, QAccessible::Separator, AccessibleParts::Hidden);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize Separator::sizeHint() const
{
    return {1, 1};
}

void Separator::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const Tokens& tokens = Tokens::of(palette());
    drawHorizontalHairline(painter, 0, width(), 0, m_weight == Weight::Border ? tokens.border : tokens.divider);
}

} // namespace abissora
