// SPDX-License-Identifier: MIT
#include "Catalogue.h"
#include "Literals.h"
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
        item(4, "Pinne lunghe", EquipmentType::fins, "Nordsee", "Apnea", u"GAV"_s, "2027-01-01T00:00:00Z"),
        item(5, "Faro", EquipmentType::other, "Perché", "F1", u"Torcia"_s, "2026-04-30T23:59:59Z"),
        item(6, "Seconda ala", EquipmentType::bcd, "Mare", "Travel", u"gav"_s, "2026-12-01T00:00:00Z"),
    };
}

QStringList namesOf(const EquipmentExcerpt& equipment)
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
        QCOMPARE(
            namesOf(catalogue.viewModel.filteredEquipment()),
            QStringList({u"Faro"_s, u"Primo stadio"_s, u"Jacket"_s, u"Ala"_s, u"Seconda ala"_s, u"Pinne lunghe"_s}));
        QCOMPARE(catalogue.console.calls(), QStringList{u"🔍 FILTRO ATTIVO:\n"
                                                        "   filterTypeName: nil\n"
                                                        "   selectedType: nil\n"
                                                        "   searchText: \n"
                                                        "   Totale equipment: 6\n"
                                                        "   📊 Risultati: 6 su 6"_s});
        QCOMPARE(catalogue.viewModel.equipment(), sixItems());
    }

    void byTypeName()
    {
        test::Catalogue catalogue(sixItems());
        catalogue.viewModel.setSelectedType(EquipmentType::fins); // the name wins
        catalogue.viewModel.setFilterTypeName(u"GAV"_s);
        catalogue.console.clear();
        QCOMPARE(namesOf(catalogue.viewModel.filteredEquipment()), QStringList({u"Jacket"_s, u"Pinne lunghe"_s}));
        QCOMPARE(catalogue.console.calls(), QStringList{u"🔍 FILTRO ATTIVO:\n"
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
                                                        "   📊 Risultati: 2 su 6"_s});
    }

    void anEmptyTypeNameLeavesTheKind()
    {
        test::Catalogue catalogue(sixItems());
        catalogue.viewModel.setFilterTypeName(QString());
        catalogue.viewModel.setSelectedType(EquipmentType::bcd);
        catalogue.viewModel.setSearchText(u"travel"_s);
        catalogue.console.clear();
        QCOMPARE(namesOf(catalogue.viewModel.filteredEquipment()), QStringList({u"Ala"_s, u"Seconda ala"_s}));
        QCOMPARE(catalogue.console.calls(), QStringList{u"🔍 FILTRO ATTIVO:\n"
                                                        "   filterTypeName: \n"
                                                        "   selectedType: GAV\n"
                                                        "   searchText: travel\n"
                                                        "   Totale equipment: 6\n"
                                                        "   ✅ Applico filtro per enum: GAV\n"
                                                        "   ✅ Applico filtro ricerca: travel\n"
                                                        "   📊 Risultati: 2 su 6"_s});
    }

    void anOwnTypeKeepsItsKind()
    {
        test::Catalogue catalogue(sixItems());
        catalogue.viewModel.setSelectedType(EquipmentType::fins);
        QCOMPARE(namesOf(catalogue.viewModel.filteredEquipment()), QStringList{u"Pinne lunghe"_s});
    }

    void nameAndSearchTogether()
    {
        test::Catalogue catalogue(sixItems());
        catalogue.viewModel.setFilterTypeName(u"GAV"_s);
        catalogue.viewModel.setSearchText(u"HYDROS"_s);
        catalogue.console.clear();
        QCOMPARE(namesOf(catalogue.viewModel.filteredEquipment()), QStringList{u"Jacket"_s});
        const QStringList lines = catalogue.console.lines();
        QCOMPARE(lines.size(), 14);
        QCOMPARE(lines.at(12), u"   ✅ Applico filtro ricerca: HYDROS"_s);
        QCOMPARE(lines.at(13), u"   📊 Risultati: 1 su 6"_s);
    }

    void search_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("found");
        QTest::newRow("brand in lower case") << u"apeks"_s << Names{u"Primo stadio"_s};
        QTest::newRow("name") << u"STADIO"_s << Names{u"Primo stadio"_s};
        QTest::newRow("model in the middle") << u"tx5"_s << Names{u"Primo stadio"_s};
        QTest::newRow("name or model") << u"ap"_s << Names{u"Primo stadio"_s, u"Pinne lunghe"_s};
        QTest::newRow("accent in capitals") << u"PERCHÉ"_s << Names{u"Faro"_s};
        QTest::newRow("accent missing") << u"perche"_s << Names{};
        QTest::newRow("serial number") << u"SN-01"_s << Names{};
        QTest::newRow("notes") << u"Note"_s << Names{};
        QTest::newRow("own type") << u"Torcia"_s << Names{};
        QTest::newRow("kind") << u"Erogatore"_s << Names{};
        QTest::newRow("across fields") << u"stadioApeks"_s << Names{};
        QTest::newRow("space counts") << u" ala"_s << Names{u"Seconda ala"_s};
        QTest::newRow("pattern characters") << u".*"_s << Names{};
    }

    void search()
    {
        QFETCH(QString, text);
        test::Catalogue catalogue(sixItems());
        catalogue.viewModel.setSearchText(text);
        QTEST(namesOf(catalogue.viewModel.filteredEquipment()), "found");
        QVERIFY(catalogue.console.lines().contains(QString(u"   ✅ Applico filtro ricerca: "_s + text)));
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
        QCOMPARE(test::Catalogue(many).viewModel.filteredEquipment(), EquipmentExcerpt(expected));
    }

    void everyReadComputesAndPrintsOnce()
    {
        test::Catalogue catalogue(sixItems());
        const EquipmentExcerpt first = catalogue.viewModel.filteredEquipment();
        QCOMPARE(catalogue.viewModel.filteredEquipment(), first);
        QCOMPARE(catalogue.console.calls().size(), 2);
        QCOMPARE(catalogue.console.calls().at(0), catalogue.console.calls().at(1));
        catalogue.viewModel.deleteEquipment(sixItems().at(0));
        QCOMPARE(catalogue.viewModel.filteredEquipment().size(), 5);
    }

    void anEmptyCatalogue()
    {
        test::Catalogue catalogue({});
        catalogue.viewModel.setFilterTypeName(u"GAV"_s);
        catalogue.console.clear();
        QVERIFY(catalogue.viewModel.filteredEquipment().isEmpty());
        QCOMPARE(catalogue.console.lines().mid(4),
                 QStringList({u"   Totale equipment: 0"_s, u"   ✅ Applico filtro per nome: 'GAV'"_s,
                              u"   📊 Risultati: 0 su 0"_s}));
    }
};

ABISSORA_TEST(tst_EquipmentFilter);
#include "tst_EquipmentFilter.moc"
