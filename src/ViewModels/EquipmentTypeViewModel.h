// SPDX-License-Identifier: MIT
#pragma once

#include "Console.h"
#include "Equipment.h"
#include "EquipmentTypeModel.h"
#include "IdGenerator.h"
#include "Literals.h"
#include "PreferencesStore.h"
#include "StateFiles.h"
#include "StateObject.h"
#include "SymbolLibrary.h"

#include <QList>

namespace abissora {

/// The user's catalogue of equipment types. Equipment is linked to a type by the type's name only: renaming,
/// deactivating or deleting a type never touches equipment. Every change is written through at once.
class EquipmentTypeViewModel : public StateObject
{
    Q_OBJECT

public:
    static inline const QString typesKey = abissora::typesKey;
    static inline const QString iconVersionKey = abissora::iconVersionKey;
    static constexpr std::int64_t currentIconVersion = 4;

    /// Loads the types at once. Everything passed by reference must outlive it.
    EquipmentTypeViewModel(PreferencesStore& preferences, const SymbolLibrary& symbols, Console& console,
                           IdGenerator& ids, QObject* parent = nullptr);

    /// The stored types with their icons migrated; the defaults, stored at once, when there are none or they cannot be
    /// read (a copy of the unreadable bytes is kept).
    void loadTypes();
    /// `occasion` tells what the list lacks.
    void saveTypes(Occasion occasion = Occasion::change);

    [[nodiscard]] const QList<EquipmentTypeModel>& types() const { return m_types; }
    /// Publishes without saving.
    void setTypes(const QList<EquipmentTypeModel>& types);
    [[nodiscard]] const std::optional<EquipmentTypeModel>& selectedType() const { return m_selectedType; }
    void setSelectedType(const std::optional<EquipmentTypeModel>& type);
    [[nodiscard]] const QString& searchText() const { return m_searchText; }
    void setSearchText(const QString& text);
    [[nodiscard]] bool isAddingType() const { return m_isAddingType; }
    void setAddingType(bool adding);

    /// The active types whose name contains searchText, by name in code-point order.
    [[nodiscard]] QList<EquipmentTypeModel> filteredTypes() const;
    /// The first active type of exactly this name.
    [[nodiscard]] std::optional<EquipmentTypeModel> getTypeByName(const QString& name) const;
    /// The built-in kind whose displayed name this is.
    [[nodiscard]] static std::optional<EquipmentType> getEquipmentType(const QString& from);

    /// Appends it; a name that is already taken is no obstacle.
    void addType(const EquipmentTypeModel& type);
    /// Appends them and stores the list once, as what comes from outside.
    void importTypes(const QList<EquipmentTypeModel>& types);
    /// Both find the type by its id and do nothing when there is none.
    void updateType(const EquipmentTypeModel& type);
    void deleteType(const EquipmentTypeModel& type);

    /// The sixteen standard types with fresh ids.
    [[nodiscard]] QList<EquipmentTypeModel> getDefaultTypes() const;
    /// Puts them in the place of all types. Their icons need no migration.
    void resetToDefaults();

Q_SIGNALS:
    void typesChanged();
    void selectedTypeChanged();
    void searchTextChanged();
    void isAddingTypeChanged();

private:
    [[nodiscard]] bool loadStoredTypes();
    void migrateIconsIfNeeded();
    void storeIconVersion();
    [[nodiscard]] qsizetype indexOf(const QUuid& id) const;
    void report(const QString& prefix, const QString& reason) const;

    PreferencesStore& m_preferences;
    const SymbolLibrary& m_symbols;
    Console& m_console;
    IdGenerator& m_ids;

    QList<EquipmentTypeModel> m_types;
    std::optional<EquipmentTypeModel> m_selectedType;
    QString m_searchText;
    bool m_isAddingType = false;
};

} // namespace abissora
