// SPDX-License-Identifier: MIT
#include "SettingsInfoRow.h"

#include "Literals.h"
#include "Metrics.h"

#include <QHBoxLayout>

namespace abissora {

SettingsInfoRow::SettingsInfoRow(const QString& label, InkLabel::Ink valueColor, TextStyle style, QWidget* parent)
    : QWidget(parent)
    , m_label(new InkLabel(style, &Tokens::text, label))
    , m_value(new InkLabel(style, valueColor))
{
    m_value->setObjectName(u"informationValue"_s);
    m_label->setBuddy(m_value);
    m_value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_value->setFocusPolicy(Qt::StrongFocus); // the toolkit gives the focus to clicks only
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(metrics::spaceL);
    layout->addWidget(m_label);
    layout->addWidget(m_value, 1);
}

} // namespace abissora
