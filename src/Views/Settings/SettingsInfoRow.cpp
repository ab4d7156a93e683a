// SPDX-License-Identifier: MIT
#include "SettingsInfoRow.h"

#include "Metrics.h"

#include <QHBoxLayout>

namespace abissora {

SettingsInfoRow::SettingsInfoRow(const QString& label, InkLabel::Ink valueColor, QWidget* parent)
    : QWidget(parent)
    , m_label(new InkLabel(TextStyle::Body, &Tokens::text, label))
    , m_value(new InkLabel(TextStyle::Body, valueColor))
{
    m_value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(metrics::spaceL);
    layout->addWidget(m_label);
    layout->addWidget(m_value, 1);
}

} // namespace abissora
