// SPDX-License-Identifier: MIT
#include "ColorChoice.h"

#include "ColorSwatch.h"
#include "FlowLayout.h"
#include "InkLabel.h"
#include "Metrics.h"

#include <QButtonGroup>
#include <QVBoxLayout>

namespace abissora {

ColorChoice::ColorChoice(QWidget* parent)
    : QWidget(parent)
    , m_swatches(new QButtonGroup(this))
    , m_label(new InkLabel(TextStyle::Caption, &Tokens::secondaryText))
{
    m_label->setObjectName(QStringLiteral("colorLabel"));
    auto* flow = new FlowLayout(0, metrics::spaceXS);
    for (const AvailableColors color : allCases<AvailableColors>()) {
        auto* swatch = new ColorSwatch(color);
        swatch->setObjectName(caseName(color));
        m_swatches->addButton(swatch, static_cast<int>(color));
        flow->addWidget(swatch);
    }
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(metrics::spaceXS);
    layout->addLayout(flow);
    layout->addWidget(m_label);
    setSelectedColor(m_selectedColor);
    connect(m_swatches, &QButtonGroup::idClicked, this, [this](int id) { choose(static_cast<AvailableColors>(id)); });
}

void ColorChoice::setSelectedColor(AvailableColors color)
{
    m_selectedColor = color;
    m_swatches->button(static_cast<int>(color))->setChecked(true);
    m_label->setText(rawValue(color));
}

void ColorChoice::choose(AvailableColors color)
{
    if (color == m_selectedColor)
        return;
    setSelectedColor(color);
    Q_EMIT chosen(color);
}

} // namespace abissora
