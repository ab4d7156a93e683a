// SPDX-License-Identifier: MIT
#include "TechnicalDetails.h"

#include "Cards.h"
#include "DetailRow.h"
#include "Literals.h"
#include "Metrics.h"

#include <QVBoxLayout>

namespace abissora {

TechnicalDetails::TechnicalDetails(QWidget* parent)
    : GroupBox(u"Dettagli Tecnici"_s, u"info.circle"_s, parent)
{
    content()->setSpacing(metrics::spaceXS / 2);
    content()->addSpacing(metrics::spaceXS);
}

void TechnicalDetails::setLines(const QList<DetailContent::Line>& lines)
{
    while (m_rows.size() < lines.size()) {
        if (!m_rows.isEmpty())
            content()->addWidget(new Separator(Separator::Weight::Divider));
        m_rows.append(new DetailRow(lines.at(m_rows.size()).label));
        content()->addWidget(m_rows.last());
    }
    for (qsizetype i = 0; i < lines.size(); ++i)
        m_rows.at(i)->setValue(lines.at(i).value);
}

} // namespace abissora
