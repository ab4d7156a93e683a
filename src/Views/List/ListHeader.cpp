// SPDX-License-Identifier: MIT
#include "ListHeader.h"

#include "Buttons.h"
#include "Chip.h"
#include "FlowLayout.h"
#include "Metrics.h"
#include "SymbolIcon.h"
#include "TypeAppearance.h"
#include "WrapLabel.h"

#include <QHBoxLayout>

namespace abissora {

ListHeader::ListHeader(QWidget* parent)
    : QWidget(parent)
    , m_chip(new Chip)
{
    auto* title = new WrapLabel(TextStyle::Title, &Tokens::text, QStringLiteral("Attrezzatura Subacquea"));
    title->setObjectName(QStringLiteral("listTitle"));
    auto* refresh = new PlainButton(QStringLiteral("Aggiorna"));
    refresh->setObjectName(QStringLiteral("refreshButton"));
    refresh->setSymbol(QStringLiteral("arrow.clockwise"));
    auto* add = new PrimaryButton(QStringLiteral("Aggiungi"));
    add->setObjectName(QStringLiteral("addButton"));
    add->setSymbol(QStringLiteral("plus"));
    m_chip->setObjectName(QStringLiteral("filterChip"));
    m_chip->hide();

    auto* titleAndChip = new FlowLayout(metrics::spaceM, metrics::spaceXS);
    titleAndChip->addWidget(title);
    titleAndChip->addWidget(m_chip);
    // The flow layout begins at its top; on one line it stands level with the buttons.
    auto* centred = new QVBoxLayout;
    centred->addStretch();
    centred->addLayout(titleAndChip);
    centred->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(metrics::spaceS);
    layout->addLayout(centred, 1);
    layout->addWidget(refresh);
    layout->addWidget(add);

    connect(refresh, &QAbstractButton::clicked, this, &ListHeader::refreshClicked);
    connect(add, &QAbstractButton::clicked, this, &ListHeader::addClicked);
    connect(m_chip, &Chip::clearClicked, this, &ListHeader::clearFilterClicked);
}

void ListHeader::setFilter(const std::optional<QString>& typeName, const EquipmentTypeViewModel& types)
{
    m_chip->setVisible(typeName.has_value());
    if (!typeName)
        return;
    const auto type = types.getTypeByName(*typeName);
    const TypeAppearance look = type ? appearanceOf(*type) : TypeAppearance{unknownTypeIcon, NamedColor::primary};
    m_chip->setIcon(typeIcon(look.icon, look.color));
    m_chip->setText(QStringLiteral("Filtro: ") + *typeName);
}

} // namespace abissora
