// SPDX-License-Identifier: MIT
#include "EquipmentTypeViewModel.h"
#include "Literals.h"
#include "RecordJson.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"
#include "Timeline.h"

#include <QTest>

using namespace abissora;
using test::changed;

namespace {

const QString versionFile = u"preferences/iconSetVersion.json"_s;
const QString typesChanged = u"<typesChanged>"_s;

QStringList namesOf(const QList<EquipmentTypeModel>& types)
{
    QStringList names;
    for (const EquipmentTypeModel& type : types)
        names.append(type.name);
    return names;
}

} // namespace

class tst_EquipmentTypeViewModel : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        test::TestCase::init();
        m_files.emplace();
        m_timeline.emplace();
        m_types.emplace(m_files->preferences, m_symbols, *m_timeline, m_files->ids);
        m_timeline->follow(*m_types);
    }

    void cleanup() { m_types.reset(); }

    void activeTypesByName()
    {
        const QStringList sorted{u"Altro"_s,
                                 u"Bombola"_s,
                                 u"Bussola"_s,
                                 u"Cintura Zavorra"_s,
                                 u"Computer Subacqueo"_s,
                                 u"Erogatore"_s,
                                 u"GAV"_s,
                                 u"Kit Pronto Soccorso"_s,
                                 u"Manometro"_s,
                                 u"Maschera"_s,
                                 u"Muta"_s,
                                 u"Muta Stagna"_s,
                                 u"Ossigeno"_s,
                                 u"Pinne"_s,
                                 u"Profondimetro"_s,
                                 u"Torcia"_s};
        QCOMPARE(namesOf(m_types->filteredTypes()), sorted);
        QCOMPARE(m_types->types().first().name, u"Erogatore"_s); // the catalogue keeps its order
    }

    void codePointOrder()
    {
        QList<EquipmentTypeModel> types;
        for (const char* name : {"zaino", "Élite", "arpione", "Zaino", "Boa", "\xF0\x9F\xA4\xBF", "\xEF\xBF\xBD", "boa",
                                 "Boa 10", "Boa 2", ""})
            types.append(test::equipmentType(static_cast<int>(types.size()), QString::fromUtf8(name)));
        EquipmentTypeModel twin = test::equipmentType(50, u"Boa"_s);
        types.prepend(twin);
        m_types->setTypes(types);
        QCOMPARE(namesOf(m_types->filteredTypes()),
                 QStringList({QString(), u"Boa"_s, u"Boa"_s, u"Boa 10"_s, u"Boa 2"_s, u"Zaino"_s, u"arpione"_s,
                              u"boa"_s, u"zaino"_s, u"Élite"_s, QString(QChar(0xFFFD)), u"🤿"_s}));
        QCOMPARE(m_types->filteredTypes().at(1), twin); // of equal names the first in the catalogue
    }

    void searching_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("found");
        QTest::newRow("inside a word") << u"rog"_s << QStringList{u"Erogatore"_s};
        QTest::newRow("in capitals") << u"EROG"_s << QStringList{u"Erogatore"_s};
        QTest::newRow("several") << u"muta"_s << QStringList{u"Muta"_s, u"Muta Stagna"_s};
        QTest::newRow("none") << u"zzz"_s << QStringList{};
        QTest::newRow("icons do not count") << u"dive."_s << QStringList{};
        QTest::newRow("colours do not count") << u"orange"_s << QStringList{};
    }

    void searching()
    {
        QFETCH(QString, text);
        m_types->setSearchText(text);
        QTEST(namesOf(m_types->filteredTypes()), "found");
    }

    void inactiveTypesAreLeftOut()
    {
        EquipmentTypeModel type = m_types->types().at(1);
        type.isActive = false;
        m_types->updateType(type);
        QVERIFY(!namesOf(m_types->filteredTypes()).contains(u"GAV"_s));
        m_types->setSearchText(u"gav"_s);
        QCOMPARE(m_types->filteredTypes().size(), 0);
        QVERIFY(!m_types->getTypeByName(u"GAV"_s));
    }

    void byName()
    {
        QCOMPARE(m_types->getTypeByName(u"Erogatore"_s), std::optional(m_types->types().at(0)));
        for (const char* name : {"erogatore", "Erogatore ", "Erog", "", "Torce", "Èrogatore"})
            QVERIFY2(!m_types->getTypeByName(QString::fromUtf8(name)), name);
        m_types->setSearchText(u"zzz"_s); // the search does not matter here
        QVERIFY(m_types->getTypeByName(u"Erogatore"_s));
    }

    void theFirstActiveOfTwoNamesakes()
    {
        QList<EquipmentTypeModel> types{test::equipmentType(1, u"Boa"_s), test::equipmentType(2, u"Boa"_s),
                                        test::equipmentType(3, u"Boa"_s)};
        types[0].isActive = false;
        m_types->setTypes(types);
        QCOMPARE(m_types->getTypeByName(u"Boa"_s), std::optional(types.at(1)));
    }

    void builtInKinds()
    {
        for (const EquipmentType type : allCases<EquipmentType>())
            QVERIFY(EquipmentTypeViewModel::getEquipmentType(rawValue(type)) == type);
        for (const char* name : {"Torcia", "Bussola", "Profondimetro", "Manometro", "Cintura Zavorra",
                                 "Kit Pronto Soccorso", "Ossigeno", "erogatore", "Computer Sub", ""})
            QVERIFY2(!EquipmentTypeViewModel::getEquipmentType(QString::fromUtf8(name)), name);
    }

    void addition()
    {
        const EquipmentTypeModel namesake = test::equipmentType(99, u"GAV"_s);
        m_types->addType(namesake);
        QCOMPARE(m_types->types().size(), 17);
        QCOMPARE(m_types->types().last(), namesake);
        QCOMPARE(stored(), m_types->types());
        QCOMPARE(m_timeline->take(), QStringList({typesChanged, changed}));
    }

    void update()
    {
        EquipmentTypeModel type = m_types->types().at(3);
        type.name = u"Mascherina"_s;
        type.icon = u"star.fill"_s;
        type.color = u"Verde Acqua"_s;
        type.serviceIntervalDays = -1;
        m_types->updateType(type);
        QCOMPARE(m_types->types().at(3), type);
        QCOMPARE(m_types->types().size(), 16);
        QCOMPARE(stored(), m_types->types());
        QCOMPARE(m_timeline->take(), QStringList({typesChanged, changed}));
    }

    void onlyTheFirstOfTheIdIsMeant()
    {
        const EquipmentTypeModel first = test::equipmentType(1, u"Boa"_s);
        const EquipmentTypeModel twin = test::equipmentType(1, u"Faro"_s);
        const EquipmentTypeModel changedTwin = test::equipmentType(1, u"Lampada"_s);
        m_types->setTypes({first, twin});
        m_types->updateType(changedTwin);
        QCOMPARE(m_types->types(), QList({changedTwin, twin}));
        m_types->deleteType(twin);
        QCOMPARE(m_types->types(), QList{twin});
    }

    void deletion()
    {
        const QList<EquipmentTypeModel> before = m_types->types();
        EquipmentTypeModel otherwise = before.at(0);
        otherwise.name = u"Altro nome"_s;
        m_types->deleteType(otherwise);
        QCOMPARE(m_types->types(), before.mid(1));
        QCOMPARE(stored(), before.mid(1));
        QCOMPARE(m_timeline->take(), QStringList({typesChanged, changed}));
        m_types->deleteType(m_types->types().at(2));
        QCOMPARE(m_types->types().size(), 14);
    }

    void unknownTypesChangeNothing()
    {
        const QList<EquipmentTypeModel> before = m_types->types();
        QVERIFY(QFile::remove(m_files->path(test::typesFile))); // a save would bring it back
        EquipmentTypeModel unknown = before.at(0);
        unknown.id = test::SequentialIds::at(99);
        m_types->updateType(unknown);
        m_types->deleteType(unknown);
        QCOMPARE(m_types->types(), before);
        QVERIFY(!QFileInfo::exists(m_files->path(test::typesFile)));
        QCOMPARE(m_timeline->take(), QStringList());
    }

    void reset()
    {
        m_types->setTypes({test::equipmentType(1, u"Boa"_s)});
        m_types->saveTypes();
        m_files->write(versionFile, "1");
        m_timeline->take();
        const int used = m_files->ids.count();
        m_types->resetToDefaults();
        QCOMPARE(m_types->types().size(), 16);
        QCOMPARE(m_types->types().first().id, test::SequentialIds::at(used + 1));
        QCOMPARE(stored(), m_types->types());
        QCOMPARE(m_files->content(versionFile), QByteArray("4"));
        QCOMPARE(m_timeline->take(), QStringList({typesChanged, changed}));
    }

    void defaultsHaveFreshIdsEveryTime()
    {
        QSet<QUuid> ids;
        for (int time = 0; time < 3; ++time) {
            const auto types = m_types->getDefaultTypes();
            for (const EquipmentTypeModel& type : types)
                ids.insert(type.id);
        }
        QCOMPARE(ids.size(), 48);
    }

    void stateIsStoredBeforeItIsAnnounced()
    {
        int announced = 0;
        connect(&*m_types, &EquipmentTypeViewModel::typesChanged, this, [&] {
            ++announced;
            QCOMPARE(stored(), m_types->types());
        });
        m_types->addType(test::equipmentType(99, u"Boa"_s));
        m_types->updateType(test::equipmentType(99, u"Faro"_s));
        m_types->deleteType(test::equipmentType(99, QString()));
        m_types->resetToDefaults();
        QCOMPARE(announced, 4);
    }

    void otherProperties()
    {
        m_types->setSelectedType(m_types->types().at(0));
        m_types->setSearchText(u"a"_s);
        m_types->setAddingType(true);
        QCOMPARE(m_types->selectedType(), std::optional(m_types->types().at(0)));
        QCOMPARE(m_types->searchText(), u"a"_s);
        QVERIFY(m_types->isAddingType());
        QCOMPARE(m_timeline->take(), QStringList({u"<selectedTypeChanged>"_s, changed, u"<searchTextChanged>"_s,
                                                  changed, u"<isAddingTypeChanged>"_s, changed}));
    }

private:
    QList<EquipmentTypeModel> stored() const
    {
        return decodeTypes(m_files->content(test::typesFile)).value_or(QList<EquipmentTypeModel>());
    }

    std::optional<test::TemporaryRegister> m_files;
    std::optional<test::Timeline> m_timeline;
    test::FakeSymbolLibrary m_symbols;
    std::optional<EquipmentTypeViewModel> m_types;
};

ABISSORA_TEST(tst_EquipmentTypeViewModel);
#include "tst_EquipmentTypeViewModel.moc"
