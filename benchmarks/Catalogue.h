// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentViewModel.h"
#include "Generations.h"
#include "RecordJson.h"
#include "Report.h"
#include "SymbolLibrary.h"

#include <QTemporaryDir>

namespace abissora::benchmark {

class SilentConsole final : public Console
{
public:
    void print(const QString& text) override { sink = static_cast<std::size_t>(text.size()); }
};

class AnySymbol final : public SymbolLibrary
{
public:
    [[nodiscard]] bool contains(const QString& /*name*/) const override { return true; }
};

class NoPanel final : public FilePanel
{
public:
    [[nodiscard]] std::optional<QString> pickFile(const FilePanelRequest& /*request*/) override { return {}; }
    [[nodiscard]] std::optional<SaveTarget> pickTarget(const SavePanelRequest& /*request*/) override { return {}; }
};

class NoWork final : public LongWork
{
public:
    [[nodiscard]] QCoro::Task<IoResult<void>> run(QString /*title*/, Function /*work*/,
                                                  std::shared_ptr<WorkProgress> /*progress*/) override
    {
        co_return {};
    }
};

/// The register's state object over a folder of its own.
class Catalogue
{
public:
    Catalogue(const QList<Equipment>& equipment, const Clock& clock, const Calendar& calendar)
        : m_directories(m_folder.path(), true)
        , m_generations(m_directories, clock, calendar, m_console, m_permission)
        , m_preferences(m_directories.preferences(), m_generations)
        , m_archive(m_directories, clock, m_permission)
        , m_documents(m_directories.maintenanceDocuments(), m_archive, m_panel, m_work, m_ids, m_console)
    {
        m_preferences.setData(StorageManager::equipmentKey, encode(equipment).value());
        m_viewModel.emplace(StorageManager(m_preferences, m_console, clock, calendar, m_ids), m_documents, m_console,
                            clock, calendar);
    }

    EquipmentViewModel* operator->() { return &*m_viewModel; }
    const EquipmentViewModel& operator*() const { return *m_viewModel; }

private:
    QTemporaryDir m_folder;
    SilentConsole m_console;
    NoPanel m_panel;
    NoWork m_work;
    RandomIdGenerator m_ids;
    ApplicationDirectories m_directories;
    AlwaysPermitted m_permission;
    Generations m_generations;
    PreferencesStore m_preferences;
    DocumentArchive m_archive;
    MaintenanceDocumentStore m_documents;
    std::optional<EquipmentViewModel> m_viewModel;
};

} // namespace abissora::benchmark
