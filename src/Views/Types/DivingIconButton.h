// SPDX-License-Identifier: MIT
#pragma once

#include "Buttons.h"
#include "DivingIcons.h"

namespace abissora {

/// A cell of the icon picker, named by what its picture shows. Of the cells beside one another one is chosen.
class DivingIconButton final : public IconButton
{
    Q_OBJECT

public:
    explicit DivingIconButton(DivingIcons icon, QWidget* parent = nullptr);

    [[nodiscard]] DivingIcons divingIcon() const { return m_icon; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    DivingIcons m_icon;
};

} // namespace abissora
