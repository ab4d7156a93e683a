// SPDX-License-Identifier: MIT
#include "DueBadge.h"

#include "IconViews.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "Painting.h"
#include "SymbolIcon.h"

#include <QPainter>
#include <QVBoxLayout>

namespace abissora {

namespace {

constexpr int signSide = 22;

} // namespace

DueBadge::DueBadge(QWidget* parent)
    : QFrame(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(metrics::spaceS, metrics::spaceS, metrics::spaceS, metrics::spaceS);
    layout->setSpacing(metrics::spaceXS / 2);
    auto* sign = new IconView(symbolIcon(u"exclamationmark.triangle.fill"_s, NamedColor::red), signSide);
    layout->addWidget(sign, 0, Qt::AlignHCenter);
    layout->addWidget(new InkLabel(TextStyle::CaptionSemibold, &Tokens::danger, u"SCADUTO"_s), 0, Qt::AlignHCenter);
}

void DueBadge::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    drawPanel(painter, rect(), metrics::controlRadius, Tokens::of(palette()).dangerTint, {});
}

} // namespace abissora
