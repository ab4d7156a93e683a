// SPDX-License-Identifier: MIT
#include "InformationGroup.h"

#include "Buttons.h"
#include "Metrics.h"
#include "PageOpening.h"
#include "ProgramFacts.h"
#include "SettingsInfoRow.h"
#include "WrapLabel.h"

#include <QHBoxLayout>

namespace abissora {

InformationGroup::InformationGroup(const AppContext& context, QWidget* parent)
    : SettingsGroupBox(QStringLiteral("Informazioni"), QStringLiteral("info.circle"), parent)
    , m_context(context)
    , m_types(nullptr)
    , m_update([this] { redraw(); })
{
    for (const ProgramFact& fact : programFacts(context))
        m_facts.append(addRow(fact.label));
    m_types = addRow(QStringLiteral("Tipologie disponibili"));
    content()->addWidget(new WrapLabel(TextStyle::Caption, &Tokens::secondaryText,
                                       QStringLiteral("Icone: Game Icons (CC BY 3.0), MDI, Icon-Park, Lucide")));
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
    const QString caption = QStringLiteral("— sito dell'applicazione");
    auto* link = new LinkButton(address.host());
    link->setObjectName(QStringLiteral("website"));
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
    const QList<ProgramFact> facts = programFacts(m_context);
    for (qsizetype i = 0; i < facts.size(); ++i)
        m_facts.at(i)->setValue(facts.at(i).value);
    m_types->setValue(QString::number(m_context.types.filteredTypes().size()));
}

} // namespace abissora
