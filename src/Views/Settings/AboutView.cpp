// SPDX-License-Identifier: MIT
#include "AboutView.h"

#include "Card.h"
#include "InkLabel.h"
#include "Literals.h"
#include "Metrics.h"
#include "ProgramFacts.h"
#include "Separator.h"
#include "SettingsInfoRow.h"
#include "ShadowedIcon.h"

#include <QVBoxLayout>

namespace abissora {

namespace {

constexpr int contentWidth = 400;
constexpr int iconSide = 104;

Card* makeRows(const ProgramFacts& program)
{
    auto* card = new Card;
    card->content()->setSpacing(metrics::spaceS - 2);
    for (const ProgramFact& fact : program.all()) {
        if (!card->findChildren<SettingsInfoRow*>().isEmpty())
            card->content()->addWidget(new Separator(Separator::Weight::Divider));
        auto* row = new SettingsInfoRow(fact.label, &Tokens::secondaryText, TextStyle::Callout);
        row->setValue(fact.value);
        card->content()->addWidget(row);
    }
    return card;
}

} // namespace

AboutView::AboutView(const ProgramFacts& program, QWidget* parent)
    : QWidget(parent)
{
    setObjectName(u"aboutView"_s);
    auto* name = new InkLabel(TextStyle::LargeTitle, &Tokens::text, u"Abissora"_s);
    auto* subtitle =
        new InkLabel(TextStyle::Body, &Tokens::secondaryText, u"Gestione attrezzatura subacquea e manutenzioni"_s);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(metrics::spaceXL, metrics::spaceL, metrics::spaceXL, metrics::spaceXL);
    layout->setSpacing(metrics::spaceXS);
    layout->addWidget(new ShadowedIcon(iconSide), 0, Qt::AlignHCenter);
    layout->addSpacing(metrics::spaceXS);
    layout->addWidget(name, 0, Qt::AlignHCenter);
    layout->addWidget(subtitle, 0, Qt::AlignHCenter);
    layout->addSpacing(metrics::spaceL);
    layout->addWidget(makeRows(program));
    layout->addStretch();
    setMinimumWidth(withText(contentWidth, fontMetrics()));
}

void AboutView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    setFocus();
}

} // namespace abissora
