// SPDX-License-Identifier: MIT
#pragma once

#include "Cards.h"
#include "Labels.h"
#include "SettingsViewModel.h"

class QAbstractButton;

namespace abissora {

/// One line of information: the label at the left, the value, which can be selected, at the right.
class SettingsInfoRow : public QWidget
{
    Q_OBJECT

public:
    explicit SettingsInfoRow(const QString& label, InkLabel::Ink valueColor = &Tokens::secondaryText,
                             TextStyle style = TextStyle::Body, QWidget* parent = nullptr);

    [[nodiscard]] QString label() const { return m_label->text(); }
    [[nodiscard]] QString value() const { return m_value->text(); }
    void setValue(const QString& value) { m_value->setText(value); }

private:
    InkLabel* m_label;
    InkLabel* m_value;
};

/// A group of the settings: a rounded card with an icon in its header, its controls in lines.
class SettingsGroupBox : public GroupBox
{
    Q_OBJECT

public:
    SettingsGroupBox(const QString& title, const QString& symbol, QWidget* parent = nullptr);

    using Getter = bool (SettingsViewModel::*)() const;
    using Setter = void (SettingsViewModel::*)(bool);

    void addText(const QString& text);
    /// A smaller text that explains `control`, also to screen readers.
    void addExplanation(const QString& text, QWidget* control);
    /// Shows a setting as it is stored and stores it when the person switches. `settings` must outlive the group.
    QAbstractButton* addSwitch(const QString& text, const QString& name, SettingsViewModel& settings, Getter get,
                               Setter set);
    SettingsInfoRow* addInformation(const QString& label);
    /// As wide as its text.
    void addButton(QAbstractButton* button);
    /// The caption at the left names the control at the right edge.
    void addLine(const QString& caption, QWidget* control);
    /// A text that may change at the left, a button at the right edge.
    void addLine(InkLabel* text, QWidget* button);
};

} // namespace abissora
