// SPDX-License-Identifier: MIT
#include "DueRow.h"

#include "Buttons.h"
#include "IconViews.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "RegisterFigures.h"
#include "SymbolIcon.h"

#include <QHBoxLayout>

namespace abissora {

namespace {

constexpr int tileSide = 38;
constexpr int iconGap = metrics::spaceM + 2;

} // namespace

DueRow::DueRow(QWidget* parent)
    : QWidget(parent)
    , m_tile(new IconTile(tileSide))
    , m_name(new ElidedLabel(TextStyle::BodyMedium, &Tokens::text))
    , m_state(new ElidedLabel(TextStyle::Caption, &Tokens::danger))
    , m_add(new PrimaryButton(u"Aggiungi Manutenzione"_s))
    , m_details(new PlainButton(u"Dettagli"_s))
{
    m_tile->setObjectName(u"dueIcon"_s);
    m_name->setObjectName(u"dueName"_s);
    m_state->setObjectName(u"dueState"_s);
    m_add->setObjectName(u"addMaintenance"_s);
    m_details->setObjectName(u"showDetails"_s);

    auto* texts = new QVBoxLayout;
    texts->setSpacing(metrics::spaceXS / 2);
    texts->addStretch();
    texts->addWidget(m_name);
    texts->addWidget(m_state);
    texts->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(metrics::spaceL, metrics::spaceM, metrics::spaceL, metrics::spaceM);
    layout->setSpacing(iconGap);
    layout->addWidget(m_tile);
    layout->addLayout(texts, 1);
    for (QAbstractButton* button : {m_add, m_details}) {
        layout->addWidget(button);
        connect(button, &QAbstractButton::clicked, this, [this, button] { choose(*button); });
    }
}

void DueRow::choose(QAbstractButton& button)
{
    // Pressed by a screen reader it does not have the focus yet; it is where the focus comes back to.
    if (!button.hasFocus())
        button.setFocus(Qt::OtherFocusReason);
    Q_EMIT chosen();
}

void DueRow::setItem(const RegisterSummary::DueItem& item, const TypeAppearance& appearance)
{
    m_equipment = item.equipment;
    m_tile->setIcon(typeIcon(appearance.icon, appearance.color), appearance.color);
    m_name->setText(item.equipment.name);
    m_state->setText(dueText(item));
    setAccessibleName(m_name->text() + u", "_s + m_state->text());
    for (QAbstractButton* button : {m_add, m_details})
        button->setAccessibleDescription(item.equipment.name);
}

} // namespace abissora
