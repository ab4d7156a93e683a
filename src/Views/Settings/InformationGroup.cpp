// SPDX-License-Identifier: MIT
#include "InformationGroup.h"

#include "Buttons.h"
#include "Literals.h"
#include "Metrics.h"
#include "Opening.h"
#include "SettingsInfoRow.h"
#include "WrapLabel.h"

#include <QHBoxLayout>

namespace abissora {

InformationGroup::InformationGroup(const ProgramFacts& program, EquipmentTypeViewModel& types, Opener& opener,
                                   QWidget* parent)
    : SettingsGroupBox(u"Informazioni"_s, u"info.circle"_s, parent)
    , m_program(program)
    , m_types(types)
    , m_update([this] { redraw(); })
{
    for (const ProgramFact& fact : program.all())
        m_facts.append(addRow(fact.label));
    m_available = addRow(u"Tipologie disponibili"_s);
    content()->addWidget(new WrapLabel(TextStyle::Caption, &Tokens::secondaryText,
                                       u"Icone: Game Icons (CC BY 3.0), MDI, Icon-Park, Lucide"_s));
    content()->addLayout(makeWebsiteLine(opener));
    connect(&types, &EquipmentTypeViewModel::changed, &m_update, &CoalescedUpdate::schedule);
    redraw();
}

SettingsInfoRow* InformationGroup::addRow(const QString& label)
{
    auto* row = new SettingsInfoRow(label);
    content()->addWidget(row);
    return row;
}

QLayout* InformationGroup::makeWebsiteLine(Opener& opener)
{
    const QUrl address = m_program.product.websiteURL;
    const QString caption = u"— sito dell'applicazione"_s;
    auto* link = new LinkButton(address.host());
    link->setObjectName(u"website"_s);
    link->setAccessibleDescription(caption);
    connect(link, &QAbstractButton::clicked, this, [this, address, &opener] { openPage(address, opener, *this); });
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
    const QList<ProgramFact> facts = m_program.all();
    for (qsizetype i = 0; i < facts.size(); ++i)
        m_facts.at(i)->setValue(facts.at(i).value);
    m_available->setValue(QString::number(m_types.filteredTypes().size()));
}

} // namespace abissora
