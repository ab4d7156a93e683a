// SPDX-License-Identifier: MIT
#include "AboutRow.h"

#include "InkLabel.h"
#include "Metrics.h"

#include <QHBoxLayout>

namespace abissora {

AboutRow::AboutRow(const QString& label, const QString& value, QWidget* parent)
    : QWidget(parent)
    , m_label(new InkLabel(TextStyle::Body, &Tokens::secondaryText, label))
    , m_value(new InkLabel(TextStyle::Body, &Tokens::text, value))
{
    m_value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_value->setFocusPolicy(Qt::StrongFocus);
    m_label->setBuddy(m_value);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, metrics::spaceXS, 0, metrics::spaceXS);
    layout->setSpacing(metrics::spaceXL);
    layout->addWidget(m_label);
    layout->addStretch();
    layout->addWidget(m_value);
}

QString AboutRow::label() const
{
    return m_label->text();
}

QString AboutRow::value() const
{
    return m_value->text();
}

} // namespace abissora
