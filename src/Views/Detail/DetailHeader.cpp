// SPDX-License-Identifier: MIT
#include "DetailHeader.h"

#include "DueBadge.h"
#include "IconViews.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "StateMark.h"
#include "SymbolIcon.h"

#include <QHBoxLayout>

namespace abissora {

namespace {

constexpr int tileSide = 56;

} // namespace

DetailHeader::DetailHeader(QWidget* parent)
    : Card(parent)
    , m_tile(new IconTile(tileSide))
    , m_name(new WrapLabel(TextStyle::Headline, &Tokens::text))
    , m_typeName(new WrapLabel(TextStyle::Body, &Tokens::secondaryText))
    , m_state(new StateMark)
    , m_badge(new DueBadge)
{
    m_name->setObjectName(u"detailName"_s);
    m_typeName->setObjectName(u"detailType"_s);
    m_state->setObjectName(u"detailState"_s);
    m_badge->setObjectName(u"dueBadge"_s);

    auto* texts = new QVBoxLayout;
    texts->setSpacing(metrics::spaceXS / 2);
    texts->addStretch();
    texts->addWidget(m_name);
    texts->addWidget(m_typeName);
    texts->addWidget(m_state);
    texts->addStretch();
    auto* row = new QHBoxLayout;
    row->setSpacing(metrics::spaceM);
    row->addWidget(m_tile);
    row->addLayout(texts, 1);
    row->addWidget(m_badge);
    content()->addLayout(row);
}

void DetailHeader::setContent(const DetailContent& content)
{
    m_tile->setIcon(typeIcon(content.appearance.icon, content.appearance.color), content.appearance.color);
    m_name->setText(content.name);
    m_typeName->setText(content.typeName);
    m_state->setActive(content.isActive);
    m_badge->setVisible(content.isDue);
    setAccessibleName(content.name);
}

} // namespace abissora
