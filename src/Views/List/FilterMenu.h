// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentTypeModel.h"

#include <QMenu>
#include <QToolButton>

namespace abissora {

/// The entries of the filter button, made afresh whenever the menu opens.
class FilterMenu : public QMenu
{
    Q_OBJECT

public:
    explicit FilterMenu(QWidget* parent = nullptr);

    /// `canClear` offers the entry that clears every filter.
    void setEntries(const QList<EquipmentTypeModel>& types, bool canClear);

Q_SIGNALS:
    void allChosen();
    void typeChosen(const QString& name);
    void clearChosen();
};

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
