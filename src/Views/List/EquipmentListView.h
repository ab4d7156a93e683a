// SPDX-License-Identifier: MIT
#pragma once

#include "Almanac.h"
#include "EquipmentTypeViewModel.h"
#include "EquipmentViewModel.h"
#include "ListContent.h"
#include "VisibleUpdate.h"

#include <QWidget>

class QMenu;
class QStackedWidget;

namespace abissora {

class EmptyState;
class EquipmentTableView;
class FilterButton;
class FilterMenu;
class InkLabel;
class ListHeader;
class SearchField;

/// The register's main screen: a searchable, filterable table with its header, its footer of counts and the actions on
/// each item. Holds no data of its own.
class EquipmentListView : public QWidget
{
    Q_OBJECT

public:
    /// Everything passed by reference must outlive it.
    EquipmentListView(EquipmentViewModel& equipment, const EquipmentTypeViewModel& types, Almanac almanac,
                      Console& console, IdGenerator& ids, QWidget* parent = nullptr);

    /// The item that the parent shows in detail; a copy. Its row comes into sight with the next redraw that has one.
    void setSelectedEquipment(const std::optional<Equipment>& equipment);
    /// The item at whose row the keyboard stands, selected or not; nothing while the keyboard is elsewhere.
    [[nodiscard]] std::optional<Equipment> equipmentAtKeyboard() const;

    /// Asks before it deletes.
    void confirmDeletion(const Equipment& equipment);
    /// What the confirmation is about; nothing while none is open.
    [[nodiscard]] const std::optional<Equipment>& equipmentToDelete() const { return m_equipmentToDelete; }

    /// Gives the list a new identity: every row is made anew.
    void refresh();
    [[nodiscard]] QUuid refreshID() const { return m_refreshID; }

    [[nodiscard]] EquipmentTableView& table() { return *m_table; }

    void focusSearch();
    /// The table; while it has no rows, the button in its place.
    void focusContent();

Q_SIGNALS:
    /// The person selected an item, or none.
    void equipmentSelected(const std::optional<abissora::Equipment>& equipment);
    void editRequested(const abissora::Equipment& equipment);
    void addRequested();
    /// A table (CSV) was dropped on the list.
    void tableDropped(const QString& path);
    /// The selected item has a row; or it has none since the search or a filter changed.
    void selectionListed(bool listed);
    /// The keyboard stands at another row, or came or went.
    void placeChanged();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void buildLayout();
    void buildRowActions();
    void connectControls();
    void connectTable();
    void redraw();
    /// The focus of what it replaces goes over to it.
    void showContent(QWidget& content);
    void tellOfNarrowing();
    void select(const std::optional<Equipment>& equipment);
    void edit(const Equipment& equipment);
    void clearFilters();
    void deleteConfirmed();

    EquipmentViewModel& m_equipment;
    const EquipmentTypeViewModel& m_types;
    Almanac m_almanac;
    Console& m_console;
    IdGenerator& m_ids;
    VisibleUpdate m_update;
    std::optional<Equipment> m_selectedEquipment;
    ListContent::Narrowing m_narrowing;
    std::optional<Equipment> m_equipmentToDelete;
    Equipment m_equipmentOfActions; ///< whose row the menu was opened for
    QUuid m_refreshID;

    ListHeader* m_header;
    SearchField* m_search;
    FilterMenu* m_filterMenu;
    FilterButton* m_filterButton;
    QStackedWidget* m_content;
    EquipmentTableView* m_table;
    EmptyState* m_empty;
    InkLabel* m_shownCount;
    InkLabel* m_dueCount;
    InkLabel* m_activeCount;
    QMenu* m_rowActions;
};

} // namespace abissora
