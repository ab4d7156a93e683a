// SPDX-License-Identifier: MIT
#include "SettingsGroupBox.h"

#include "Metrics.h"
#include "WrapLabel.h"

#include <QAbstractButton>
#include <QHBoxLayout>

namespace abissora {

SettingsGroupBox::SettingsGroupBox(const QString& title, const QString& symbol, QWidget* parent)
    : GroupBox(title, symbol, parent)
{
    content()->setSpacing(metrics::spaceS + 2);
}

void SettingsGroupBox::addText(const QString& text)
{
    content()->addWidget(new WrapLabel(TextStyle::Body, &Tokens::text, text));
}

void SettingsGroupBox::addExplanation(const QString& text, QWidget* control)
{
    control->setAccessibleDescription(text);
    content()->addSpacing(-metrics::spaceXS);
    content()->addWidget(new WrapLabel(TextStyle::Caption, &Tokens::secondaryText, text));
}

void SettingsGroupBox::addLine(QWidget* control)
{
    content()->addWidget(control);
}

void SettingsGroupBox::addButton(QAbstractButton* button)
{
    content()->addWidget(button, 0, Qt::AlignLeft);
}

void SettingsGroupBox::addLine(const QString& caption, QWidget* control)
{
    auto* label = new InkLabel(TextStyle::Caption, &Tokens::secondaryText, caption);
    label->setBuddy(control);
    control->setAccessibleName(caption);
    addLine(label, control);
}

void SettingsGroupBox::addLine(InkLabel* text, QWidget* button)
{
    auto* line = new QHBoxLayout;
    line->setSpacing(metrics::spaceM);
    line->addWidget(text, 1);
    line->addWidget(button);
    content()->addLayout(line);
}

} // namespace abissora
