// SPDX-License-Identifier: MIT
#pragma once

#include <QToolButton>

namespace abissora {

class FilterMenu;

/// Opens the filter menu. Its picture says enough: no arrow is drawn beside it.
class FilterButton : public QToolButton
{
    Q_OBJECT

public:
    /// `menu` belongs to somebody else.
    explicit FilterButton(FilterMenu& menu, QWidget* parent = nullptr);

protected:
    void initStyleOption(QStyleOptionToolButton* option) const override;
};

} // namespace abissora
