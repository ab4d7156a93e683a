// SPDX-License-Identifier: MIT
#include "ListFooter.h"

#include "InkLabel.h"
#include "Literals.h"
#include "Metrics.h"

#include <QHBoxLayout>

namespace abissora {

ListFooter::ListFooter(QWidget* parent)
    : QWidget(parent)
    , m_shown(new InkLabel(TextStyle::Caption, &Tokens::secondaryText))
    , m_due(new InkLabel(TextStyle::Caption, &Tokens::danger))
    , m_active(new InkLabel(TextStyle::Caption, &Tokens::ok))
{
    m_shown->setObjectName(u"shownCount"_s);
    m_due->setObjectName(u"dueCount"_s);
    m_active->setObjectName(u"activeCount"_s);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(metrics::spaceXS, 0, metrics::spaceXS, 0);
    layout->setSpacing(metrics::spaceL + metrics::spaceXS);
    for (InkLabel* label : {m_shown, m_due, m_active})
        layout->addWidget(label);
    layout->addStretch();
}

void ListFooter::setCounts(qsizetype shown, qsizetype due, qsizetype active)
{
    m_shown->setText(u"%1 articoli"_s.arg(shown));
    m_due->setText(u"⚠️ %1 manutenzioni scadute"_s.arg(due));
    m_due->setVisible(due > 0);
    m_active->setText(u"%1 attivi"_s.arg(active));
}

} // namespace abissora
