// SPDX-License-Identifier: MIT
#include "StatisticsView.h"

#include "CardGrid.h"
#include "InkLabel.h"
#include "Literals.h"
#include "Metrics.h"
#include "ScreenPage.h"
#include "StatCard.h"
#include "TypeDistribution.h"

#include <QVBoxLayout>

namespace abissora {

StatisticsView::StatisticsView(const EquipmentViewModel& equipment, const EquipmentTypeViewModel& types,
                               QWidget* parent)
    : QWidget(parent)
    , m_equipment(equipment)
    , m_catalogue(types)
    , m_update(*this, [this] { redraw(); })
    , m_total(new StatCard(u"Totale Attrezzatura"_s, u"list.bullet.circle.fill"_s, NamedColor::blue))
    , m_active(new StatCard(u"Attrezzatura Attiva"_s, u"checkmark.circle.fill"_s, NamedColor::green))
    , m_due(new StatCard(u"Manutenzioni Scadute"_s, u"exclamationmark.triangle.fill"_s, NamedColor::red))
    , m_expiring(new StatCard(u"In Scadenza (30gg)"_s, u"clock.fill"_s, NamedColor::orange))
    , m_inOrder(new StatCard(u"In Regola"_s, u"checkmark.seal.fill"_s, NamedColor::green))
    , m_types(new StatCard(u"Tipologie"_s, u"folder.fill"_s, NamedColor::purple))
    , m_distribution(new TypeDistribution)
{
    setObjectName(u"statistics"_s);
    buildLayout();
    connect(&equipment, &EquipmentViewModel::equipmentChanged, &m_update, &VisibleUpdate::schedule);
    connect(&types, &EquipmentTypeViewModel::changed, &m_update, &VisibleUpdate::schedule);
}

void StatisticsView::buildLayout()
{
    m_distribution->setObjectName(u"distribution"_s);
    m_distribution->setAccessibleName(u"Distribuzione per Tipo"_s);
    auto* cards = new CardGrid(3);
    for (StatCard* card : {m_total, m_active, m_due, m_expiring, m_inOrder, m_types})
        cards->addWidget(card);

    auto* page = new ScreenPage(u"Statistiche"_s);
    page->column()->addLayout(cards);
    page->column()->addWidget(new InkLabel(TextStyle::Headline, &Tokens::text, u"Distribuzione per Tipo"_s));
    page->column()->addWidget(m_distribution);
    page->column()->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(page);
}

void StatisticsView::redraw()
{
    const RegisterSummary summary = m_equipment.summary();
    const QList<EquipmentTypeModel> types = m_catalogue.filteredTypes();
    m_total->setValue(QString::number(summary.total));
    m_active->setValue(QString::number(summary.active));
    m_due->setValue(QString::number(summary.due.size()));
    m_expiring->setValue(QString::number(summary.expiring));
    m_inOrder->setValue(QString::number(summary.inOrder));
    m_types->setValue(QString::number(types.size()));

    const QHash<QString, qsizetype> counts = activeItemsByTypeName(m_equipment.equipment());
    QList<TypeDistribution::Share> shares;
    for (const EquipmentTypeModel& type : types)
        shares.append({type.name, appearanceOf(type), counts.value(type.name)});
    m_distribution->setShares(shares, summary.total);
}

} // namespace abissora
