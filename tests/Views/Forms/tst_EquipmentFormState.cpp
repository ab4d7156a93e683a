// SPDX-License-Identifier: MIT
#include "EquipmentFormState.h"

#include "ScreenFixture.h"
#include "StableUuid.h"
#include "TestRunner.h"
#include "TypeChoice.h"

using namespace abissora;
using namespace abissora::test;

namespace {

EquipmentTypeModel makeType(const QString& name, std::int64_t interval = 365)
{
    return {SequentialIds::at(1), name, QStringLiteral("dive.light"), QStringLiteral("blue"), interval, true};
}

EquipmentFormState filled()
{
    EquipmentFormState state;
    state.name = QStringLiteral("Nome");
    state.brand = QStringLiteral("Marca");
    return state;
}

} // namespace

class tst_EquipmentFormState : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void validity_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("brand");
        QTest::addColumn<bool>("valid");
        const QString text = QStringLiteral("X");
        QTest::newRow("both") << text << text << true;
        QTest::newRow("no name") << QString() << text << false;
        QTest::newRow("no brand") << text << QString() << false;
        QTest::newRow("name of spaces") << QStringLiteral("   ") << text << false;
        QTest::newRow("brand of line breaks") << text << QStringLiteral("\n\r\n") << false;
        QTest::newRow("name of other white space")
            << QStringLiteral("\t\u00A0\u2003\u2028\u2029\u0085") << text << false;
        QTest::newRow("padded") << QStringLiteral(" X\n") << QStringLiteral("\tX ") << true;
    }

    void validity()
    {
        QFETCH(QString, name);
        QFETCH(QString, brand);
        EquipmentFormState state;
        state.name = name;
        state.brand = brand;
        QTEST(state.isFormValid(), "valid");
    }

    void selectedTypeOfAnItem_data()
    {
        QTest::addColumn<std::optional<QString>>("custom");
        QTest::addColumn<QString>("selected");
        QTest::newRow("built-in") << std::optional<QString>() << QStringLiteral("Pinne");
        QTest::newRow("custom") << std::optional(QStringLiteral("Torcia")) << QStringLiteral("Torcia");
        QTest::newRow("empty counts as absent") << std::optional(QStringLiteral("")) << QStringLiteral("Pinne");
    }

    void selectedTypeOfAnItem()
    {
        QFETCH(std::optional<QString>, custom);
        Equipment item = makeItem(1, QStringLiteral("X"), EquipmentType::fins, {});
        item.customTypeName = custom;
        QTEST(EquipmentFormState::of(item).selectedTypeName, "selected");
    }

    void savedType_data()
    {
        QTest::addColumn<QString>("selected");
        QTest::addColumn<EquipmentType>("type");
        QTest::addColumn<std::optional<QString>>("custom");
        const std::optional<QString> none;
        QTest::newRow("cylinder") << QStringLiteral("Bombola") << EquipmentType::cylinder << none;
        QTest::newRow("other") << QStringLiteral("Altro") << EquipmentType::other << none;
        QTest::newRow("padded") << QStringLiteral(" GAV\n") << EquipmentType::bcd << none;
        QTest::newRow("own") << QStringLiteral("Torcia") << EquipmentType::other
                             << std::optional(QStringLiteral("Torcia"));
        QTest::newRow("own, padded") << QStringLiteral(" Faro ") << EquipmentType::other
                                     << std::optional(QStringLiteral("Faro"));
        QTest::newRow("case counts") << QStringLiteral("bombola") << EquipmentType::other
                                     << std::optional(QStringLiteral("bombola"));
    }

    void savedType()
    {
        QFETCH(QString, selected);
        Equipment before = makeItem(1, QStringLiteral("X"), EquipmentType::fins, {});
        before.customTypeName = QStringLiteral("Vecchio");
        EquipmentFormState state = filled();
        state.selectedTypeName = selected;
        const Equipment after = state.appliedTo(before, {});
        QTEST(after.type, "type");
        QTEST(after.customTypeName, "custom");
    }

    void textsAreTrimmedAtBothEnds()
    {
        const QString padded = QStringLiteral(" \t\n\u00A0a  b\nc \u2028\r\n");
        const QString trimmed = QStringLiteral("a  b\nc");
        EquipmentFormState state;
        for (QString* text : {&state.name, &state.brand, &state.model, &state.serialNumber, &state.notes})
            *text = padded;
        const Equipment item = state.appliedTo({}, {});
        for (const QString& text : {item.name, item.brand, item.model, item.serialNumber, item.notes})
            QCOMPARE(text, trimmed);
    }

    void idAndHistoryStay()
    {
        Equipment before = makeItem(7, QStringLiteral("X"), EquipmentType::fins, {});
        before.maintenanceHistory.append(Maintenance());
        EquipmentFormState state = EquipmentFormState::of(before);
        state.isActive = false;
        const Equipment after = state.appliedTo(before, Instant(std::chrono::hours(1)));
        QCOMPARE(after.id, before.id);
        QCOMPARE(after.maintenanceHistory, before.maintenanceHistory);
        QCOMPARE(after.nextServiceDate, Instant(std::chrono::hours(1)));
        QVERIFY(!after.isActive);
    }

    void nextServiceDate_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<int>("days");
        QTest::newRow("a year") << QStringLiteral("Erogatore") << 365;
        QTest::newRow("two years") << QStringLiteral("Computer Subacqueo") << 730;
        QTest::newRow("own interval") << QStringLiteral("Faro") << 90;
        QTest::newRow("negative interval") << QStringLiteral("Ieri") << -1;
        QTest::newRow("unknown to the catalogue") << QStringLiteral("Zaino") << 365;
        QTest::newRow("deactivated") << QStringLiteral("Spento") << 365;
        QTest::newRow("case counts") << QStringLiteral("faro") << 365;
    }

    void nextServiceDate()
    {
        QFETCH(QString, type);
        QFETCH(int, days);
        ScreenFixture f;
        EquipmentTypeModel inactive = makeType(QStringLiteral("Spento"), 10);
        inactive.isActive = false;
        f.types.setTypes(f.types.types() + QList<EquipmentTypeModel>{makeType(QStringLiteral("Faro"), 90),
                                                                     makeType(QStringLiteral("Ieri"), -1), inactive});
        f.settings.setDefaultServiceInterval(30); // has no say here
        EquipmentFormState state = filled();
        state.selectedTypeName = type;
        state.lastServiceDate = f.inDays(-100);
        QCOMPARE(state.calculateNextServiceDate(f.types, f.calendar, f.clock.now()), f.inDays(days - 100));
    }

    void nextServiceDateBeyondTheCalendarIsNow()
    {
        ScreenFixture f;
        f.types.setTypes({makeType(QStringLiteral("Eterno"), std::numeric_limits<std::int64_t>::max())});
        EquipmentFormState state = filled();
        state.selectedTypeName = QStringLiteral("Eterno");
        state.lastServiceDate = f.inDays(-1);
        QCOMPARE(state.calculateNextServiceDate(f.types, f.calendar, f.clock.now()), f.clock.now());
    }

    void defaultType_data()
    {
        QTest::addColumn<QStringList>("offered");
        QTest::addColumn<QString>("chosen");
        QTest::newRow("regulator") << QStringList{QStringLiteral("Altro"), QStringLiteral("Erogatore")}
                                   << QStringLiteral("Erogatore");
        QTest::newRow("first") << QStringList{QStringLiteral("GAV"), QStringLiteral("Pinne")} << QStringLiteral("GAV");
        QTest::newRow("none") << QStringList() << QString();
    }

    void defaultType()
    {
        QFETCH(QStringList, offered);
        QList<EquipmentTypeModel> types;
        for (const QString& name : offered)
            types.append(makeType(name));
        QTEST(defaultTypeName(types), "chosen");
    }

    void aTypeNoLongerOfferedIsAppended()
    {
        const QList<EquipmentTypeModel> offered{makeType(QStringLiteral("GAV")), makeType(QStringLiteral("Zaino"))};
        QCOMPARE(availableTypes(offered, QStringLiteral("GAV")), offered);
        QCOMPARE(availableTypes(offered, QString()), offered);
        const auto available = availableTypes(offered, QStringLiteral("Faro"));
        QCOMPARE(available.first(2), offered);
        QCOMPARE(available.last(),
                 (EquipmentTypeModel{stableUUID(QStringLiteral("Faro")), QStringLiteral("Faro"),
                                     QStringLiteral("questionmark.circle.fill"), QStringLiteral("gray"), 365, true}));
        QCOMPARE(availableTypes({}, QStringLiteral("Faro")).size(), 1);
        QCOMPARE(availableTypes(offered, QStringLiteral("gav")).size(), 3); // letter case counts
    }
};

ABISSORA_TEST(tst_EquipmentFormState);

#include "tst_EquipmentFormState.moc"
