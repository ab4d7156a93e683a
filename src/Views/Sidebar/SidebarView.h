// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentTypeViewModel.h"
#include "SidebarContent.h"
#include "VisibleUpdate.h"

#include <QListView>
#include <QStandardItemModel>
#include <QStyledItemDelegate>

namespace abissora {

/// Paints the sidebar's rows: titles in caption, entries with their picture and badge, the divider.
class SidebarDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// The whole of a name that is cut.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
};

/// Shows the selection of what the window is about, and lets the person choose another one.
class SidebarView : public QListView
{
    Q_OBJECT

public:
    enum Role { TagRole = Qt::UserRole, KindRole, BadgeRole };

    /// Everything passed by reference must outlive it.
    SidebarView(EquipmentViewModel& equipment, const EquipmentTypeViewModel& types, Console& console,
                QWidget* parent = nullptr);

    /// The tag of the selected row.
    [[nodiscard]] const std::optional<QString>& selectedSidebarItem() const { return m_selection.tag(); }
    void setSelectedSidebarItem(const std::optional<QString>& tag) { m_selection.select(tag); }

    /// Wide enough for the fixed rows with a badge, and for a scroll bar beside them.
    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    void selectedSidebarItemChanged();
    /// The selection asks for a tab of the main window.
    void tabRequested(int tab);

protected:
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    void redraw();
    void showRows();
    /// On "Manutenzione scaduta"; 0 shows none.
    void showBadge(qsizetype count);
    /// The first row with this tag; not valid when there is none.
    [[nodiscard]] QModelIndex indexOf(const QString& tag) const;
    void showSelection();

    EquipmentViewModel& m_equipment;
    const EquipmentTypeViewModel& m_types;
    SidebarSelection m_selection;
    QList<SidebarRow> m_rows;
    QStandardItemModel m_model;
    SidebarDelegate m_delegate;
    CoalescedUpdate m_update;
    bool m_silent = false;
};

} // namespace abissora
