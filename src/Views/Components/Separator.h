// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace abissora {

/// A horizontal hairline.
class Separator : public QWidget
{
    Q_OBJECT

public:
    enum class Weight {
        Border,  ///< between parts of a window
        Divider, ///< between rows
    };

    explicit Separator(Weight weight = Weight::Border, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Weight m_weight;
};

} // namespace abissora
