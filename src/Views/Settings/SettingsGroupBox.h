// SPDX-License-Identifier: MIT
#pragma once

#include "GroupBox.h"
#include "InkLabel.h"

class QAbstractButton;

namespace abissora {

/// A group of the settings: a rounded card with an icon in its header, its controls in lines.
class SettingsGroupBox : public GroupBox
{
    Q_OBJECT

public:
    SettingsGroupBox(const QString& title, const QString& symbol, QWidget* parent = nullptr);

    void addText(const QString& text);
    /// A smaller text that explains `control`, also to screen readers.
    void addExplanation(const QString& text, QWidget* control);
    void addLine(QWidget* control);
    /// As wide as its text.
    void addButton(QAbstractButton* button);
    /// The caption at the left names the control at the right edge.
    void addLine(const QString& caption, QWidget* control);
    /// A text that may change at the left, a button at the right edge.
    void addLine(InkLabel* text, QWidget* button);
};

} // namespace abissora
