// SPDX-License-Identifier: MIT
#include "SettingsGroupBox.h"

#include "Assembly.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "ToggleSwitch.h"

#include <QAbstractButton>

namespace abissora {

SettingsInfoRow::SettingsInfoRow(const QString& label, InkLabel::Ink valueColor, TextStyle style, QWidget* parent)
    : QWidget(parent)
    , m_label(new InkLabel(style, &Tokens::text, label))
    , m_value(named(new InkLabel(style, valueColor), u"informationValue"))
{
    m_label->setBuddy(m_value);
    m_value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_value->setFocusPolicy(Qt::StrongFocus); // the toolkit gives the focus to clicks only
    setLayout(inRow(metrics::spaceL, {m_label, {m_value, 1}}));
}

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

QAbstractButton* SettingsGroupBox::addSwitch(const QString& text, const QString& name, SettingsViewModel& settings,
                                             Getter get, Setter set)
{
    auto* toggle = named(new ToggleSwitch(text), name);
    toggle->setChecked((settings.*get)());
    // Not clicked, which leaves out a screen reader's toggling.
    connect(toggle, &QAbstractButton::toggled, &settings, [&settings, get, set](bool on) {
        if (on != (settings.*get)())
            (settings.*set)(on);
    });
    connect(&settings, &SettingsViewModel::changed, toggle,
            [toggle, &settings, get] { toggle->setChecked((settings.*get)()); });
    content()->addWidget(toggle);
    return toggle;
}

SettingsInfoRow* SettingsGroupBox::addInformation(const QString& label)
{
    auto* row = new SettingsInfoRow(label);
    content()->addWidget(row);
    return row;
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
    content()->addLayout(inRow(metrics::spaceM, {{text, 1}, button}));
}

} // namespace abissora
