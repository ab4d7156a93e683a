// SPDX-License-Identifier: MIT
#include "InformationGroup.h"

#include "Buttons.h"
#include "Literals.h"
#include "Metrics.h"
#include "PageOpening.h"
#include "ProgramFacts.h"
#include "SettingsInfoRow.h"
#include "WrapLabel.h"

#include <QHBoxLayout>

namespace abissora {

InformationGroup::InformationGroup(const AppContext& context, QWidget* parent)
    : SettingsGroupBox(u"Informazioni"_s, u"info.circle"_s, parent)
    , m_context(context)
    , m_types(nullptr)
    , m_update([this] { redraw(); })
{
    for (const ProgramFact& fact : programFacts(context.info, context.product))
        m_facts.append(addRow(fact.label));
    m_types = addRow(u"Tipologie disponibili"_s);
    content()->addWidget(new WrapLabel(TextStyle::Caption, &Tokens::secondaryText,
                                       u"Icone: Game Icons (CC BY 3.0), MDI, Icon-Park, Lucide"_s));
    content()->addLayout(makeWebsiteLine());
    connect(&context.types, &EquipmentTypeViewModel::changed, &m_update, &CoalescedUpdate::schedule);
    redraw();
}

SettingsInfoRow* InformationGroup::addRow(const QString& label)
{
    auto* row = new SettingsInfoRow(label);
    content()->addWidget(row);
    return row;
}

QLayout* InformationGroup::makeWebsiteLine()
{
    const QUrl address = m_context.product.websiteURL;
    const QString caption = u"— sito dell'applicazione"_s;
    auto* link = new LinkButton(address.host());
    link->setObjectName(u"website"_s);
    link->setAccessibleDescription(caption);
    connect(link, &QAbstractButton::clicked, this, [this, address] { openPage(address, m_context.opener, *this); });
    auto* line = new QHBoxLayout;
    line->setSpacing(0);
    line->addSpacing(-metrics::spaceXS); // the link's own padding
    line->addWidget(link);
    line->addWidget(new InkLabel(TextStyle::Body, &Tokens::secondaryText, caption), 1);
    return line;
}

void InformationGroup::showEvent(QShowEvent* event)
{
    redraw(); // the year and the file's date may have moved on since
    SettingsGroupBox::showEvent(event);
}

void InformationGroup::redraw()
{
    const QList<ProgramFact> facts = programFacts(m_context.info, m_context.product);
    for (qsizetype i = 0; i < facts.size(); ++i)
        m_facts.at(i)->setValue(facts.at(i).value);
    m_types->setValue(QString::number(m_context.types.filteredTypes().size()));
}

} // namespace abissora
