// SPDX-License-Identifier: MIT
#pragma once

#include "NamedColor.h"

#include <QWidget>

class QLabel;

namespace abissora {

class IconView;
class PlainButton;

/// What stands where there is nothing to list: a large symbol, a title, and, once set, a text and one button.
class EmptyState : public QWidget
{
    Q_OBJECT

public:
    explicit EmptyState(QWidget* parent = nullptr);
    EmptyState(const QString& symbol, const QString& title, QWidget* parent = nullptr);

    void setSymbol(const QString& name, NamedColor color = NamedColor::secondary);
    void setTitle(const QString& title);
    void setText(const QString& text);
    void setButtonText(const QString& text);
    [[nodiscard]] PlainButton* button() const { return m_button; }

Q_SIGNALS:
    void buttonClicked();

private:
    IconView* m_icon;
    QLabel* m_title;
    QLabel* m_text;
    PlainButton* m_button;
};

} // namespace abissora
