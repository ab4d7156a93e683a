// SPDX-License-Identifier: MIT
#include "Card.h"

#include "Accessibility.h"
#include "Metrics.h"
#include "Painting.h"
#include "Tokens.h"

#include <QPainter>
#include <QVBoxLayout>

namespace abissora {

Card::Card(QWidget* parent)
    : QFrame(parent)
    , m_content(new QVBoxLayout(this))
{
    setAccessibleRole(*this, QAccessible::Grouping);
    m_content->setContentsMargins(metrics::spaceL, metrics::spaceL, metrics::spaceL, metrics::spaceL);
    m_content->setSpacing(metrics::spaceS);
}

void Card::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const Tokens& tokens = Tokens::of(palette());
    drawPanel(painter, rect(), metrics::cardRadius, tokens.surface, tokens.border);
}

} // namespace abissora
