// SPDX-License-Identifier: MIT
#include "EquipmentViewModel.h"
#include "Literals.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"
#include "Timeline.h"

#include <QTest>

using namespace abissora;
using test::changed;

namespace {

const QString searchTextChanged = u"<searchTextChanged>"_s;
const QString selectedTypeChanged = u"<selectedTypeChanged>"_s;
const QString filterTypeNameChanged = u"<filterTypeNameChanged>"_s;

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
        m_viewModel->setFilterTypeName(u"GAV"_s);
        m_viewModel->setFilterTypeName(u"GAV"_s);
        m_viewModel->setFilterTypeName(QString());
        m_viewModel->setFilterTypeName(std::nullopt);
        m_viewModel->setFilterTypeName(std::nullopt);
        QCOMPARE(m_timeline->take(),
                 QStringList({u"📌 filterTypeName cambiato da nil a GAV"_s, filterTypeNameChanged, changed,
                              u"📌 filterTypeName cambiato da GAV a GAV"_s, filterTypeNameChanged, changed,
                              u"📌 filterTypeName cambiato da GAV a "_s, filterTypeNameChanged, changed,
                              u"📌 filterTypeName cambiato da  a nil"_s, filterTypeNameChanged, changed,
                              u"📌 filterTypeName cambiato da nil a nil"_s, filterTypeNameChanged, changed}));
    }

    void searchTextAndKindAreAnnouncedOnly()
    {
        m_viewModel->setSearchText(u"apeks"_s);
        m_viewModel->setSelectedType(EquipmentType::fins);
        QCOMPARE(m_viewModel->searchText(), u"apeks"_s);
        QVERIFY(m_viewModel->selectedType() == EquipmentType::fins);
        QCOMPARE(m_timeline->take(), QStringList({searchTextChanged, changed, selectedTypeChanged, changed}));
    }

    void filteringByATypeName()
    {
        m_viewModel->setSearchText(u"apeks"_s);
        m_viewModel->setSelectedType(EquipmentType::fins);
        m_viewModel->setFilterTypeName(u"Torcia"_s);
        m_timeline->take();
        m_viewModel->filterByTypeName(u"GAV"_s);
        QCOMPARE(m_viewModel->searchText(), QString());
        QVERIFY(!m_viewModel->selectedType());
        QCOMPARE(m_viewModel->filterTypeName(), std::optional(u"GAV"_s));
        QCOMPARE(m_timeline->take(),
                 QStringList({u"🎯 FILTRO PER NOME: 'GAV'"_s, searchTextChanged, changed, selectedTypeChanged, changed,
                              u"📌 filterTypeName cambiato da Torcia a GAV"_s, filterTypeNameChanged, changed,
                              u"   ✅ filterTypeName impostato a: 'GAV'"_s}));
    }

    void filteringByAnEmptyTypeName()
    {
        m_viewModel->filterByTypeName(QString());
        QCOMPARE(m_viewModel->filterTypeName(), std::optional(QString()));
        const QStringList events = m_timeline->take();
        QCOMPARE(events.first(), u"🎯 FILTRO PER NOME: ''"_s);
        QCOMPARE(events.last(), u"   ✅ filterTypeName impostato a: ''"_s);
    }

    void aReset()
    {
        m_viewModel->setSearchText(u"apeks"_s);
        m_viewModel->setSelectedType(EquipmentType::fins);
        m_viewModel->setFilterTypeName(u"Torcia"_s);
        m_timeline->take();
        m_viewModel->resetFilters();
        QCOMPARE(m_viewModel->searchText(), QString());
        QVERIFY(!m_viewModel->selectedType());
        QVERIFY(!m_viewModel->filterTypeName());
        QCOMPARE(m_timeline->take(), QStringList({u"🔄 Reset filtri"_s, searchTextChanged, changed, selectedTypeChanged,
                                                  changed, u"📌 filterTypeName cambiato da Torcia a nil"_s,
                                                  filterTypeNameChanged, changed, changed}));
    }

    void filtersAreNotStored()
    {
        m_viewModel->filterByTypeName(u"GAV"_s);
        m_viewModel->resetFilters();
        QCOMPARE(m_files->names(u"preferences"_s), QStringList{u"savedEquipment.json"_s});
        QCOMPARE(m_files->content(test::registerFile), QByteArray("[]"));
    }

private:
    std::optional<test::TemporaryRegister> m_files;
    std::optional<test::Timeline> m_timeline;
    std::optional<EquipmentViewModel> m_viewModel;
};

ABISSORA_TEST(tst_FilterCommands);
#include "tst_FilterCommands.moc"
