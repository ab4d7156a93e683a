// SPDX-License-Identifier: MIT
#include "EquipmentTypeViewModel.h"
#include "RecordJson.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"
#include "Timeline.h"

#include <QTest>

using namespace abissora;

namespace {

const QString versionFile = QStringLiteral("preferences/iconSetVersion.json");
const QString changed = QStringLiteral("<changed>");
const QString typesChanged = QStringLiteral("<typesChanged>");

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
        const QStringList sorted{QStringLiteral("Altro"),
                                 QStringLiteral("Bombola"),
                                 QStringLiteral("Bussola"),
                                 QStringLiteral("Cintura Zavorra"),
                                 QStringLiteral("Computer Subacqueo"),
                                 QStringLiteral("Erogatore"),
                                 QStringLiteral("GAV"),
                                 QStringLiteral("Kit Pronto Soccorso"),
                                 QStringLiteral("Manometro"),
                                 QStringLiteral("Maschera"),
                                 QStringLiteral("Muta"),
                                 QStringLiteral("Muta Stagna"),
                                 QStringLiteral("Ossigeno"),
                                 QStringLiteral("Pinne"),
                                 QStringLiteral("Profondimetro"),
                                 QStringLiteral("Torcia")};
        QCOMPARE(namesOf(m_types->filteredTypes()), sorted);
        QCOMPARE(m_types->types().first().name, QStringLiteral("Erogatore")); // the catalogue keeps its order
    }

    void codePointOrder()
    {
        QList<EquipmentTypeModel> types;
        for (const char* name : {"zaino", "Élite", "arpione", "Zaino", "Boa", "\xF0\x9F\xA4\xBF", "\xEF\xBF\xBD", "boa",
                                 "Boa 10", "Boa 2", ""})
            types.append(test::equipmentType(static_cast<int>(types.size()), QString::fromUtf8(name)));
        EquipmentTypeModel twin = test::equipmentType(50, QStringLiteral("Boa"));
        types.prepend(twin);
        m_types->setTypes(types);
        QCOMPARE(namesOf(m_types->filteredTypes()),
                 QStringList({QString(), QStringLiteral("Boa"), QStringLiteral("Boa"), QStringLiteral("Boa 10"),
                              QStringLiteral("Boa 2"), QStringLiteral("Zaino"), QStringLiteral("arpione"),
                              QStringLiteral("boa"), QStringLiteral("zaino"), QStringLiteral("Élite"),
                              QString(QChar(0xFFFD)), QStringLiteral("🤿")}));
        QCOMPARE(m_types->filteredTypes().at(1), twin); // of equal names the first in the catalogue
    }

    void searching_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("found");
        QTest::newRow("inside a word") << QStringLiteral("rog") << QStringList{QStringLiteral("Erogatore")};
        QTest::newRow("in capitals") << QStringLiteral("EROG") << QStringList{QStringLiteral("Erogatore")};
        QTest::newRow("several") << QStringLiteral("muta")
                                 << QStringList{QStringLiteral("Muta"), QStringLiteral("Muta Stagna")};
        QTest::newRow("none") << QStringLiteral("zzz") << QStringList{};
        QTest::newRow("icons do not count") << QStringLiteral("dive.") << QStringList{};
        QTest::newRow("colours do not count") << QStringLiteral("orange") << QStringList{};
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
        QVERIFY(!namesOf(m_types->filteredTypes()).contains(QStringLiteral("GAV")));
        m_types->setSearchText(QStringLiteral("gav"));
        QCOMPARE(m_types->filteredTypes().size(), 0);
        QVERIFY(!m_types->getTypeByName(QStringLiteral("GAV")));
    }

    void byName()
    {
        QCOMPARE(m_types->getTypeByName(QStringLiteral("Erogatore")), std::optional(m_types->types().at(0)));
        for (const char* name : {"erogatore", "Erogatore ", "Erog", "", "Torce", "Èrogatore"})
            QVERIFY2(!m_types->getTypeByName(QString::fromUtf8(name)), name);
        m_types->setSearchText(QStringLiteral("zzz")); // the search does not matter here
        QVERIFY(m_types->getTypeByName(QStringLiteral("Erogatore")));
    }

    void theFirstActiveOfTwoNamesakes()
    {
        QList<EquipmentTypeModel> types{test::equipmentType(1, QStringLiteral("Boa")),
                                        test::equipmentType(2, QStringLiteral("Boa")),
                                        test::equipmentType(3, QStringLiteral("Boa"))};
        types[0].isActive = false;
        m_types->setTypes(types);
        QCOMPARE(m_types->getTypeByName(QStringLiteral("Boa")), std::optional(types.at(1)));
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
        const EquipmentTypeModel namesake = test::equipmentType(99, QStringLiteral("GAV"));
        m_types->addType(namesake);
        QCOMPARE(m_types->types().size(), 17);
        QCOMPARE(m_types->types().last(), namesake);
        QCOMPARE(stored(), m_types->types());
        QCOMPARE(m_timeline->take(), QStringList({changed, typesChanged}));
    }

    void update()
    {
        EquipmentTypeModel type = m_types->types().at(3);
        type.name = QStringLiteral("Mascherina");
        type.icon = QStringLiteral("star.fill");
        type.color = QStringLiteral("Verde Acqua");
        type.serviceIntervalDays = -1;
        m_types->updateType(type);
        QCOMPARE(m_types->types().at(3), type);
        QCOMPARE(m_types->types().size(), 16);
        QCOMPARE(stored(), m_types->types());
        QCOMPARE(m_timeline->take(), QStringList({changed, typesChanged}));
    }

    void onlyTheFirstOfTheIdIsMeant()
    {
        const EquipmentTypeModel first = test::equipmentType(1, QStringLiteral("Boa"));
        const EquipmentTypeModel twin = test::equipmentType(1, QStringLiteral("Faro"));
        const EquipmentTypeModel changedTwin = test::equipmentType(1, QStringLiteral("Lampada"));
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
        otherwise.name = QStringLiteral("Altro nome");
        m_types->deleteType(otherwise);
        QCOMPARE(m_types->types(), before.mid(1));
        QCOMPARE(stored(), before.mid(1));
        QCOMPARE(m_timeline->take(), QStringList({changed, typesChanged}));
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
        m_types->setTypes({test::equipmentType(1, QStringLiteral("Boa"))});
        m_types->saveTypes();
        m_files->write(versionFile, "1");
        m_timeline->take();
        const int used = m_files->ids.count();
        m_types->resetToDefaults();
        QCOMPARE(m_types->types().size(), 16);
        QCOMPARE(m_types->types().first().id, test::SequentialIds::at(used + 1));
        QCOMPARE(stored(), m_types->types());
        QCOMPARE(m_files->content(versionFile), QByteArray("4"));
        QCOMPARE(m_timeline->take(), QStringList({changed, typesChanged}));
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
        m_types->addType(test::equipmentType(99, QStringLiteral("Boa")));
        m_types->updateType(test::equipmentType(99, QStringLiteral("Faro")));
        m_types->deleteType(test::equipmentType(99, QString()));
        m_types->resetToDefaults();
        QCOMPARE(announced, 4);
    }

    void otherProperties()
    {
        m_types->setSelectedType(m_types->types().at(0));
        m_types->setSearchText(QStringLiteral("a"));
        m_types->setAddingType(true);
        QCOMPARE(m_types->selectedType(), std::optional(m_types->types().at(0)));
        QCOMPARE(m_types->searchText(), QStringLiteral("a"));
        QVERIFY(m_types->isAddingType());
        QCOMPARE(m_timeline->take(), QStringList({changed, QStringLiteral("<selectedTypeChanged>"), changed,
                                                  QStringLiteral("<searchTextChanged>"), changed,
                                                  QStringLiteral("<isAddingTypeChanged>")}));
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
