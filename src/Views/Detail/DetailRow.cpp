// SPDX-License-Identifier: MIT
#include "DetailRow.h"

#include "Labels.h"
#include "Metrics.h"

#include <QHBoxLayout>

namespace abissora {

DetailRow::DetailRow(const QString& label, QWidget* parent)
    : QWidget(parent)
    , m_label(label)
    , m_value(new WrapLabel(TextStyle::Body, &Tokens::text))
{
    m_value->setAlignment(Qt::AlignRight | Qt::AlignTop);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, metrics::spaceXS, 0, metrics::spaceXS);
    layout->setSpacing(metrics::spaceM);
    layout->addWidget(new InkLabel(TextStyle::Body, &Tokens::secondaryText, label), 0, Qt::AlignTop);
    layout->addWidget(m_value, 1);
}

QString DetailRow::label() const
{
    return m_label;
}

QString DetailRow::value() const
{
    return m_value->text();
}

void DetailRow::setValue(const QString& value)
{
    m_value->setText(value);
}

} // namespace abissora
