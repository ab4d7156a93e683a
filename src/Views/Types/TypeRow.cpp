// SPDX-License-Identifier: MIT
#include "TypeRow.h"

#include "Buttons.h"
#include "IconViews.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "SymbolIcon.h"
#include "TypeAppearance.h"

#include <QHBoxLayout>

namespace abissora {

namespace {

constexpr int tileSide = 34;

} // namespace

TypeRow::TypeRow(QWidget* parent)
    : QWidget(parent)
    , m_tile(new IconTile(tileSide))
    , m_name(new WrapLabel(TextStyle::BodyMedium, &Tokens::text))
    , m_interval(new WrapLabel(TextStyle::Caption, &Tokens::secondaryText))
    , m_edit(new LookButton(ButtonLook::Link, u"Modifica"_s, u"pencil.circle.fill"_s))
    , m_delete(new LookButton(ButtonLook::DestructiveLink, u"Elimina"_s, u"trash.circle.fill"_s))
{
    m_name->setObjectName(u"typeName"_s);
    m_interval->setObjectName(u"typeInterval"_s);
    m_edit->setObjectName(u"editType"_s);
    m_delete->setObjectName(u"deleteType"_s);

    auto* texts = new QVBoxLayout;
    texts->setSpacing(metrics::spaceXS / 2);
    texts->addWidget(m_name);
    texts->addWidget(m_interval);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(metrics::spaceL, metrics::spaceS, metrics::spaceM, metrics::spaceS);
    layout->setSpacing(metrics::spaceM);
    layout->addWidget(m_tile);
    layout->addLayout(texts, 1);
    layout->addWidget(m_edit);
    layout->addWidget(m_delete);
    connect(m_edit, &QAbstractButton::clicked, this, &TypeRow::editRequested);
    connect(m_delete, &QAbstractButton::clicked, this, &TypeRow::deleteRequested);
}

void TypeRow::setType(const EquipmentTypeModel& type)
{
    m_type = type;
    const TypeAppearance look = appearanceOf(type);
    m_tile->setIcon(typeIcon(look.icon, look.color), look.color);
    m_name->setText(type.name);
    m_interval->setText(u"Intervallo: %1 giorni"_s.arg(type.serviceIntervalDays));
    setAccessibleName(type.name);
    for (LookButton* button : {m_edit, m_delete})
        button->setAccessibleDescription(type.name);
}

bool TypeRow::showsInOneLine(const QString& name, int width) const
{
    const QMargins margins = layout()->contentsMargins();
    int room = width - margins.left() - margins.right();
    for (const QWidget* beside : std::initializer_list<const QWidget*>{m_tile, m_edit, m_delete})
        room -= beside->sizeHint().width() + layout()->spacing();
    return !name.contains(u'\n') && m_name->fontMetrics().horizontalAdvance(name) < room;
}

QList<QAbstractButton*> TypeRow::buttons() const
{
    return {m_edit, m_delete};
}

} // namespace abissora
