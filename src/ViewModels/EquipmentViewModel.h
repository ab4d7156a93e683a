// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentFilter.h"
#include "MaintenanceDocumentStore.h"
#include "RegisterSummary.h"
#include "StateObject.h"
#include "StorageManager.h"

namespace abissora {

/// Items and records that come from outside, each under an id of its own.
struct ImportedRecords
{
    struct OfItem
    {
        QUuid item;
        Maintenance record;

        friend bool operator==(const OfItem&, const OfItem&) = default;
    };

    QList<Equipment> items;
    QList<OfItem> records;

    [[nodiscard]] bool isEmpty() const { return items.isEmpty() && records.isEmpty(); }
    friend bool operator==(const ImportedRecords&, const ImportedRecords&) = default;
};

/// Adds them to a register's items, as importRecords() does.
void addImported(QList<Equipment>& equipment, const ImportedRecords& imported);

/// The one owner of the register. Every verb changes the list, saves it whole, notifies and logs, in this order; an
/// unknown id makes it do nothing.
class EquipmentViewModel : public StateObject
{
    Q_OBJECT

public:
    /// Loads the register at once. Everything passed by reference must outlive it.
    EquipmentViewModel(StorageManager storageManager, MaintenanceDocumentStore& documents, Console& console,
                       const Clock& clock, Calendar calendar, QObject* parent = nullptr);

    void loadEquipment();

    /// In the order in which the items were added.
    [[nodiscard]] const QList<Equipment>& equipment() const { return m_equipment; }
    [[nodiscard]] const std::optional<Equipment>& selectedEquipment() const { return m_selectedEquipment; }
    void setSelectedEquipment(const std::optional<Equipment>& equipment);
    [[nodiscard]] bool isAddingEquipment() const { return m_isAddingEquipment; }
    void setAddingEquipment(bool adding);

    void addEquipment(const Equipment& equipment);
    void updateEquipment(const Equipment& equipment);
    /// Deletes the item's attached documents too. The selection is the screens' business.
    void deleteEquipment(const Equipment& equipment);

    /// What came from outside, items and records of items, added at the end of their lists and stored by one save. An
    /// item that gets records takes the dates of the latest one. Records of an item that there is not are left out.
    /// `occasion` is another one when the state before was kept already.
    void importRecords(const ImportedRecords& imported, Occasion occasion = Occasion::import);

    /// The item takes the new record's dates, whatever its history holds.
    void addMaintenance(const QUuid& to, const Maintenance& maintenance);
    /// The item takes the dates of the latest record of its history.
    void updateMaintenance(const QUuid& to, const Maintenance& maintenance);
    /// As updateMaintenance; an item whose last record goes keeps its dates. Deletes the record's documents.
    void deleteMaintenance(const QUuid& from, const QUuid& maintenanceId);

    [[nodiscard]] const QString& searchText() const { return m_filter.searchText; }
    void setSearchText(const QString& text);
    [[nodiscard]] std::optional<EquipmentType> selectedType() const { return m_filter.selectedType; }
    void setSelectedType(std::optional<EquipmentType> type);
    [[nodiscard]] const std::optional<QString>& filterTypeName() const { return m_filter.filterTypeName; }
    /// Logs and notifies at every assignment, of an equal value too.
    void setFilterTypeName(const std::optional<QString>& name);

    void resetFilters();
    void filterByTypeName(const QString& name);

    /// What the filters leave, soonest due first. Computed and logged at every call: read it once per redraw.
    [[nodiscard]] EquipmentExcerpt filteredEquipment() const;
    /// The active items due within dueThresholdDays, past ones included, in catalogue order. They stay the catalogue's,
    /// and are there until it changes: most who ask only want to know how many.
    [[nodiscard]] QList<const Equipment*> overdueEquipment() const;
    /// All figures of one moment, the due items among them. Says nothing to the log.
    [[nodiscard]] RegisterSummary summary() const;

    /// Notifies, so that whatever was counted from the present is read anew.
    void refreshDates();

Q_SIGNALS:
    void equipmentChanged();
    void selectedEquipmentChanged();
    void isAddingEquipmentChanged();
    void searchTextChanged();
    void selectedTypeChanged();
    void filterTypeNameChanged();

private:
    [[nodiscard]] Equipment* find(const QUuid& id);
    void deleteDocuments(const Maintenance& maintenance) const;
    void saveAndNotify(Occasion occasion = Occasion::change);

    StorageManager m_storageManager;
    MaintenanceDocumentStore& m_documents;
    Console& m_console;
    const Clock& m_clock;
    Calendar m_calendar;

    QList<Equipment> m_equipment;
    std::optional<Equipment> m_selectedEquipment;
    bool m_isAddingEquipment = false;
    EquipmentFilter m_filter;
};

} // namespace abissora
