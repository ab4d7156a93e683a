// SPDX-License-Identifier: MIT
#include "Catalogue.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;
using Names = QStringList;

namespace {

Equipment item(int id, const char* name, EquipmentType type, const char* brand, const char* model,
               const std::optional<QString>& customTypeName, const char* due)
{
    Equipment equipment = test::equipment(id, QString::fromUtf8(name));
    equipment.type = type;
    equipment.brand = QString::fromUtf8(brand);
    equipment.model = QString::fromUtf8(model);
    equipment.customTypeName = customTypeName;
    equipment.nextServiceDate = test::at(due);
    return equipment;
}

QList<Equipment> sixItems()
{
    return {
        item(1, "Jacket", EquipmentType::bcd, "Mare", "Hydros", {}, "2026-12-01T00:00:00Z"),
        item(2, "Primo stadio", EquipmentType::regulator, "Apeks", "XTX50", {}, "2026-05-01T00:00:00Z"),
        item(3, "Ala", EquipmentType::bcd, "Nordsee", "Travel", QString(), "2026-12-01T00:00:00Z"),
        item(4, "Pinne lunghe", EquipmentType::fins, "Nordsee", "Apnea", QStringLiteral("GAV"), "2027-01-01T00:00:00Z"),
        item(5, "Faro", EquipmentType::other, "Perché", "F1", QStringLiteral("Torcia"), "2026-04-30T23:59:59Z"),
        item(6, "Seconda ala", EquipmentType::bcd, "Mare", "Travel", QStringLiteral("gav"), "2026-12-01T00:00:00Z"),
    };
}

QStringList namesOf(const QList<Equipment>& equipment)
{
    QStringList names;
    for (const Equipment& one : equipment)
        names.append(one.name);
    return names;
}

} // namespace

class tst_EquipmentFilter : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void withoutFilters()
    {
        const test::Catalogue catalogue(sixItems());
        QCOMPARE(namesOf(catalogue.viewModel.filteredEquipment()),
                 QStringList({QStringLiteral("Faro"), QStringLiteral("Primo stadio"), QStringLiteral("Jacket"),
                              QStringLiteral("Ala"), QStringLiteral("Seconda ala"), QStringLiteral("Pinne lunghe")}));
        QCOMPARE(catalogue.console.calls(), QStringList{QStringLiteral("🔍 FILTRO ATTIVO:\n"
                                                                       "   filterTypeName: nil\n"
                                                                       "   selectedType: nil\n"
                                                                       "   searchText: \n"
                                                                       "   Totale equipment: 6\n"
                                                                       "   📊 Risultati: 6 su 6")});
        QCOMPARE(catalogue.viewModel.equipment(), sixItems());
    }

    void byTypeName()
    {
        test::Catalogue catalogue(sixItems());
        catalogue.viewModel.setSelectedType(EquipmentType::fins); // the name wins
        catalogue.viewModel.setFilterTypeName(QStringLiteral("GAV"));
        catalogue.console.clear();
        QCOMPARE(namesOf(catalogue.viewModel.filteredEquipment()),
                 QStringList({QStringLiteral("Jacket"), QStringLiteral("Pinne lunghe")}));
        QCOMPARE(catalogue.console.calls(),
                 QStringList{QStringLiteral("🔍 FILTRO ATTIVO:\n"
                                            "   filterTypeName: GAV\n"
                                            "   selectedType: Pinne\n"
                                            "   searchText: \n"
                                            "   Totale equipment: 6\n"
                                            "   ✅ Applico filtro per nome: 'GAV'\n"
                                            "      - Jacket: displayName='GAV' match=true\n"
                                            "      - Primo stadio: displayName='Erogatore' match=false\n"
                                            "      - Ala: displayName='' match=false\n"
                                            "      - Pinne lunghe: displayName='GAV' match=true\n"
                                            "      - Faro: displayName='Torcia' match=false\n"
                                            "      - Seconda ala: displayName='gav' match=false\n"
                                            "   📊 Risultati: 2 su 6")});
    }

    void anEmptyTypeNameLeavesTheKind()
    {
        test::Catalogue catalogue(sixItems());
        catalogue.viewModel.setFilterTypeName(QString());
        catalogue.viewModel.setSelectedType(EquipmentType::bcd);
        catalogue.viewModel.setSearchText(QStringLiteral("travel"));
        catalogue.console.clear();
        QCOMPARE(namesOf(catalogue.viewModel.filteredEquipment()),
                 QStringList({QStringLiteral("Ala"), QStringLiteral("Seconda ala")}));
        QCOMPARE(catalogue.console.calls(), QStringList{QStringLiteral("🔍 FILTRO ATTIVO:\n"
                                                                       "   filterTypeName: \n"
                                                                       "   selectedType: GAV\n"
                                                                       "   searchText: travel\n"
                                                                       "   Totale equipment: 6\n"
                                                                       "   ✅ Applico filtro per enum: GAV\n"
                                                                       "   ✅ Applico filtro ricerca: travel\n"
                                                                       "   📊 Risultati: 2 su 6")});
    }

    void anOwnTypeKeepsItsKind()
    {
        test::Catalogue catalogue(sixItems());
        catalogue.viewModel.setSelectedType(EquipmentType::fins);
        QCOMPARE(namesOf(catalogue.viewModel.filteredEquipment()), QStringList{QStringLiteral("Pinne lunghe")});
    }

    void nameAndSearchTogether()
    {
        test::Catalogue catalogue(sixItems());
        catalogue.viewModel.setFilterTypeName(QStringLiteral("GAV"));
        catalogue.viewModel.setSearchText(QStringLiteral("HYDROS"));
        catalogue.console.clear();
        QCOMPARE(namesOf(catalogue.viewModel.filteredEquipment()), QStringList{QStringLiteral("Jacket")});
        const QStringList lines = catalogue.console.lines();
        QCOMPARE(lines.size(), 14);
        QCOMPARE(lines.at(12), QStringLiteral("   ✅ Applico filtro ricerca: HYDROS"));
        QCOMPARE(lines.at(13), QStringLiteral("   📊 Risultati: 1 su 6"));
    }

    void search_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("found");
        QTest::newRow("brand in lower case") << QStringLiteral("apeks") << Names{QStringLiteral("Primo stadio")};
        QTest::newRow("name") << QStringLiteral("STADIO") << Names{QStringLiteral("Primo stadio")};
        QTest::newRow("model in the middle") << QStringLiteral("tx5") << Names{QStringLiteral("Primo stadio")};
        QTest::newRow("name or model") << QStringLiteral("ap")
                                       << Names{QStringLiteral("Primo stadio"), QStringLiteral("Pinne lunghe")};
        QTest::newRow("accent in capitals") << QStringLiteral("PERCHÉ") << Names{QStringLiteral("Faro")};
        QTest::newRow("accent missing") << QStringLiteral("perche") << Names{};
        QTest::newRow("serial number") << QStringLiteral("SN-01") << Names{};
        QTest::newRow("notes") << QStringLiteral("Note") << Names{};
        QTest::newRow("own type") << QStringLiteral("Torcia") << Names{};
        QTest::newRow("kind") << QStringLiteral("Erogatore") << Names{};
        QTest::newRow("across fields") << QStringLiteral("stadioApeks") << Names{};
        QTest::newRow("space counts") << QStringLiteral(" ala") << Names{QStringLiteral("Seconda ala")};
        QTest::newRow("pattern characters") << QStringLiteral(".*") << Names{};
    }

    void search()
    {
        QFETCH(QString, text);
        test::Catalogue catalogue(sixItems());
        catalogue.viewModel.setSearchText(text);
        QTEST(namesOf(catalogue.viewModel.filteredEquipment()), "found");
        QVERIFY(catalogue.console.lines().contains(QString(QStringLiteral("   ✅ Applico filtro ricerca: ") + text)));
    }

    void equalDatesKeepTheirOrder()
    {
        QList<Equipment> many;
        for (int i = 0; i < 500; ++i)
            many.append(item(i, QByteArray::number(i).constData(), EquipmentType::other, "", "", {},
                             i % 3 == 0 ? "2026-01-01T00:00:00Z" : "2025-01-01T00:00:00Z"));
        QList<Equipment> expected = many;
        std::stable_partition(expected.begin(), expected.end(),
                              [](const Equipment& one) { return one.name.toInt() % 3 != 0; });
        QCOMPARE(test::Catalogue(many).viewModel.filteredEquipment(), expected);
    }

    void everyReadComputesAndPrintsOnce()
    {
        test::Catalogue catalogue(sixItems());
        const QList<Equipment> first = catalogue.viewModel.filteredEquipment();
        QCOMPARE(catalogue.viewModel.filteredEquipment(), first);
        QCOMPARE(catalogue.console.calls().size(), 2);
        QCOMPARE(catalogue.console.calls().at(0), catalogue.console.calls().at(1));
        catalogue.viewModel.deleteEquipment(sixItems().at(0));
        QCOMPARE(catalogue.viewModel.filteredEquipment().size(), 5);
    }

    void anEmptyCatalogue()
    {
        test::Catalogue catalogue({});
        catalogue.viewModel.setFilterTypeName(QStringLiteral("GAV"));
        catalogue.console.clear();
        QCOMPARE(catalogue.viewModel.filteredEquipment(), QList<Equipment>());
        QCOMPARE(catalogue.console.lines().mid(4), QStringList({QStringLiteral("   Totale equipment: 0"),
                                                                QStringLiteral("   ✅ Applico filtro per nome: 'GAV'"),
                                                                QStringLiteral("   📊 Risultati: 0 su 0")}));
    }
};

ABISSORA_TEST(tst_EquipmentFilter);
#include "tst_EquipmentFilter.moc"
