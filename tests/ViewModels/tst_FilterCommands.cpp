// SPDX-License-Identifier: MIT
#include "EquipmentViewModel.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"
#include "Timeline.h"

#include <QTest>

using namespace abissora;

namespace {

const QString changed = QStringLiteral("<changed>");
const QString searchTextChanged = QStringLiteral("<searchTextChanged>");
const QString selectedTypeChanged = QStringLiteral("<selectedTypeChanged>");
const QString filterTypeNameChanged = QStringLiteral("<filterTypeNameChanged>");

} // namespace

class tst_FilterCommands : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        test::TestCase::init();
        m_files.emplace();
        m_files->write(test::registerFile, "[]");
        m_timeline.emplace();
        m_viewModel.emplace(m_files->storageManager(), m_files->documents, *m_timeline, m_files->clock,
                            m_files->calendar);
        m_timeline->follow(*m_viewModel);
        m_timeline->take();
    }

    void cleanup() { m_viewModel.reset(); }

    void everyAssignmentOfTheTypeNameIsLogged()
    {
        m_viewModel->setFilterTypeName(QStringLiteral("GAV"));
        m_viewModel->setFilterTypeName(QStringLiteral("GAV"));
        m_viewModel->setFilterTypeName(QString());
        m_viewModel->setFilterTypeName(std::nullopt);
        m_viewModel->setFilterTypeName(std::nullopt);
        QCOMPARE(
            m_timeline->take(),
            QStringList({QStringLiteral("📌 filterTypeName cambiato da nil a GAV"), changed, filterTypeNameChanged,
                         QStringLiteral("📌 filterTypeName cambiato da GAV a GAV"), changed, filterTypeNameChanged,
                         QStringLiteral("📌 filterTypeName cambiato da GAV a "), changed, filterTypeNameChanged,
                         QStringLiteral("📌 filterTypeName cambiato da  a nil"), changed, filterTypeNameChanged,
                         QStringLiteral("📌 filterTypeName cambiato da nil a nil"), changed, filterTypeNameChanged}));
    }

    void searchTextAndKindAreAnnouncedOnly()
    {
        m_viewModel->setSearchText(QStringLiteral("apeks"));
        m_viewModel->setSelectedType(EquipmentType::fins);
        QCOMPARE(m_viewModel->searchText(), QStringLiteral("apeks"));
        QVERIFY(m_viewModel->selectedType() == EquipmentType::fins);
        QCOMPARE(m_timeline->take(), QStringList({changed, searchTextChanged, changed, selectedTypeChanged}));
    }

    void filteringByATypeName()
    {
        m_viewModel->setSearchText(QStringLiteral("apeks"));
        m_viewModel->setSelectedType(EquipmentType::fins);
        m_viewModel->setFilterTypeName(QStringLiteral("Torcia"));
        m_timeline->take();
        m_viewModel->filterByTypeName(QStringLiteral("GAV"));
        QCOMPARE(m_viewModel->searchText(), QString());
        QVERIFY(!m_viewModel->selectedType());
        QCOMPARE(m_viewModel->filterTypeName(), std::optional(QStringLiteral("GAV")));
        QCOMPARE(m_timeline->take(),
                 QStringList({QStringLiteral("🎯 FILTRO PER NOME: 'GAV'"), changed, searchTextChanged, changed,
                              selectedTypeChanged, QStringLiteral("📌 filterTypeName cambiato da Torcia a GAV"), changed,
                              filterTypeNameChanged, QStringLiteral("   ✅ filterTypeName impostato a: 'GAV'")}));
    }

    void filteringByAnEmptyTypeName()
    {
        m_viewModel->filterByTypeName(QString());
        QCOMPARE(m_viewModel->filterTypeName(), std::optional(QString()));
        const QStringList events = m_timeline->take();
        QCOMPARE(events.first(), QStringLiteral("🎯 FILTRO PER NOME: ''"));
        QCOMPARE(events.last(), QStringLiteral("   ✅ filterTypeName impostato a: ''"));
    }

    void aReset()
    {
        m_viewModel->setSearchText(QStringLiteral("apeks"));
        m_viewModel->setSelectedType(EquipmentType::fins);
        m_viewModel->setFilterTypeName(QStringLiteral("Torcia"));
        m_timeline->take();
        m_viewModel->resetFilters();
        QCOMPARE(m_viewModel->searchText(), QString());
        QVERIFY(!m_viewModel->selectedType());
        QVERIFY(!m_viewModel->filterTypeName());
        QCOMPARE(m_timeline->take(),
                 QStringList({QStringLiteral("🔄 Reset filtri"), changed, searchTextChanged, changed,
                              selectedTypeChanged, QStringLiteral("📌 filterTypeName cambiato da Torcia a nil"), changed,
                              filterTypeNameChanged, changed}));
    }

    void filtersAreNotStored()
    {
        m_viewModel->filterByTypeName(QStringLiteral("GAV"));
        m_viewModel->resetFilters();
        QCOMPARE(m_files->names(QStringLiteral("preferences")), QStringList{QStringLiteral("savedEquipment.json")});
        QCOMPARE(m_files->content(test::registerFile), QByteArray("[]"));
    }

private:
    std::optional<test::TemporaryRegister> m_files;
    std::optional<test::Timeline> m_timeline;
    std::optional<EquipmentViewModel> m_viewModel;
};

ABISSORA_TEST(tst_FilterCommands);
#include "tst_FilterCommands.moc"
