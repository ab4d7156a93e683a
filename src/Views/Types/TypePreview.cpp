// SPDX-License-Identifier: MIT
#include "TypePreview.h"

#include "IconTile.h"
#include "Literals.h"
#include "Metrics.h"
#include "SymbolIcon.h"
#include "TypeAppearance.h"
#include "WrapLabel.h"

#include <QVBoxLayout>

namespace abissora {

namespace {

constexpr int tileSide = 72;

} // namespace

TypePreview::TypePreview(QWidget* parent)
    : Card(parent)
    , m_tile(new IconTile(tileSide))
    , m_name(new WrapLabel(TextStyle::BodyMedium, &Tokens::text))
    , m_interval(new WrapLabel(TextStyle::Caption, &Tokens::secondaryText))
{
    auto* title = new WrapLabel(TextStyle::Headline, &Tokens::text, u"Anteprima"_s);
    setAccessibleName(title->text());
    m_tile->setObjectName(u"previewTile"_s);
    m_name->setObjectName(u"previewName"_s);
    m_interval->setObjectName(u"previewInterval"_s);
    for (WrapLabel* label : {title, m_name, m_interval})
        label->setAlignment(Qt::AlignCenter);
    content()->addWidget(title);
    content()->addSpacing(metrics::spaceXS);
    content()->addWidget(m_tile, 0, Qt::AlignHCenter);
    content()->addSpacing(metrics::spaceXS);
    content()->addWidget(m_name);
    content()->addWidget(m_interval);
    content()->setSpacing(metrics::spaceXS);
}

void TypePreview::setType(const EquipmentTypeModel& type)
{
    const TypeAppearance look = appearanceOf(type);
    m_tile->setIcon(typeIcon(look.icon, look.color), look.color);
    m_name->setText(type.name);
    m_interval->setText(u"%1 giorni"_s.arg(type.serviceIntervalDays));
}

} // namespace abissora
