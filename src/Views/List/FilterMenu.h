// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentTypeModel.h"

#include <QMenu>
#include <QToolButton>
#include <optional>

class QActionGroup;

namespace abissora {

/// The entries of the filter button, made afresh whenever the menu opens.
class FilterMenu : public QMenu
{
    Q_OBJECT

public:
    explicit FilterMenu(QWidget* parent = nullptr);

    /// The entry of the `active` type is marked, the first one when there is none. `canClear` offers the entry that
    /// clears every filter.
    void setEntries(const QList<EquipmentTypeModel>& types, const std::optional<QString>& active, bool canClear);

Q_SIGNALS:
    void allChosen();
    void typeChosen(const QString& name);
    void clearChosen();

protected:
    bool event(QEvent* event) override;

private:
    QActionGroup* m_choices = nullptr;
};

/// Opens the filter menu. Its picture says enough: no arrow is drawn beside it.
class FilterButton : public QToolButton
{
    Q_OBJECT

public:
    /// `menu` belongs to somebody else.
    explicit FilterButton(FilterMenu& menu, QWidget* parent = nullptr);

    /// What says which filter is on; nothing when none is.
    void setActiveFilter(const QString& text);

protected:
    void initStyleOption(QStyleOptionToolButton* option) const override;

private:
    bool m_isOn = false;
};

} // namespace abissora
