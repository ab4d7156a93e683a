// SPDX-License-Identifier: MIT
#pragma once

#include "AvailableColors.h"

#include <QWidget>

class QAbstractButton;
class QButtonGroup;

namespace abissora {

class InkLabel;

/// One of the thirteen colours, with the label of the chosen one below. The arrow keys move the choice.
class ColorChoice : public QWidget
{
    Q_OBJECT

public:
    explicit ColorChoice(QWidget* parent = nullptr);

    [[nodiscard]] AvailableColors selectedColor() const { return m_selectedColor; }
    /// Emits nothing.
    void setSelectedColor(AvailableColors color);

Q_SIGNALS:
    void chosen(abissora::AvailableColors color);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// The swatch that the key leads to; null when it leads to none.
    [[nodiscard]] QAbstractButton* beside(QAbstractButton* swatch, int key) const;
    void choose(AvailableColors color);

    QButtonGroup* m_swatches;
    InkLabel* m_label;
    AvailableColors m_selectedColor = AvailableColors::blue;
};

} // namespace abissora
