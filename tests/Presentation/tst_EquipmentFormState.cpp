// SPDX-License-Identifier: MIT
#include "EquipmentFormState.h"
#include "Literals.h"

#include "RegisterFixture.h"
#include "TestRunner.h"
#include "TypeChoice.h"

using namespace abissora;
using namespace abissora::test;

namespace {

EquipmentTypeModel makeType(const QString& name, std::int64_t interval = 365)
{
    return {SequentialIds::at(1), name, u"dive.light"_s, u"blue"_s, interval, true};
}

EquipmentFormState filled()
{
    EquipmentFormState state;
    state.name = u"Nome"_s;
    state.brand = u"Marca"_s;
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
        const QString text = u"X"_s;
        QTest::newRow("both") << text << text << true;
        QTest::newRow("no name") << QString() << text << false;
        QTest::newRow("no brand") << text << QString() << false;
        QTest::newRow("name of spaces") << u"   "_s << text << false;
        QTest::newRow("brand of line breaks") << text << u"\n\r\n"_s << false;
        QTest::newRow("name of other white space") << u"\t\u00A0\u2003\u2028\u2029\u0085"_s << text << false;
        QTest::newRow("padded") << u" X\n"_s << u"\tX "_s << true;
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
        QTest::newRow("built-in") << std::optional<QString>() << u"Pinne"_s;
        QTest::newRow("custom") << std::optional(u"Torcia"_s) << u"Torcia"_s;
        QTest::newRow("empty counts as absent") << std::optional(u""_s) << u"Pinne"_s;
    }

    void selectedTypeOfAnItem()
    {
        QFETCH(std::optional<QString>, custom);
        Equipment item = makeItem(1, u"X"_s, EquipmentType::fins, {});
        item.customTypeName = custom;
        QTEST(EquipmentFormState::of(item).selectedTypeName, "selected");
    }

    void savedType_data()
    {
        QTest::addColumn<QString>("selected");
        QTest::addColumn<EquipmentType>("type");
        QTest::addColumn<std::optional<QString>>("custom");
        const std::optional<QString> none;
        QTest::newRow("cylinder") << u"Bombola"_s << EquipmentType::cylinder << none;
        QTest::newRow("other") << u"Altro"_s << EquipmentType::other << none;
        QTest::newRow("padded") << u" GAV\n"_s << EquipmentType::bcd << none;
        QTest::newRow("own") << u"Torcia"_s << EquipmentType::other << std::optional(u"Torcia"_s);
        QTest::newRow("own, padded") << u" Faro "_s << EquipmentType::other << std::optional(u"Faro"_s);
        QTest::newRow("case counts") << u"bombola"_s << EquipmentType::other << std::optional(u"bombola"_s);
    }

    void savedType()
    {
        QFETCH(QString, selected);
        Equipment before = makeItem(1, u"X"_s, EquipmentType::fins, {});
        before.customTypeName = u"Vecchio"_s;
        EquipmentFormState state = filled();
        state.selectedTypeName = selected;
        const Equipment after = state.appliedTo(before, {});
        QTEST(after.type, "type");
        QTEST(after.customTypeName, "custom");
    }

    void textsAreTrimmedAtBothEnds()
    {
        const QString padded = u" \t\n\u00A0a  b\nc \u2028\r\n"_s;
        const QString trimmed = u"a  b\nc"_s;
        EquipmentFormState state;
        for (QString* text : {&state.name, &state.brand, &state.model, &state.serialNumber, &state.notes})
            *text = padded;
        const Equipment item = state.appliedTo({}, {});
        for (const QString& text : {item.name, item.brand, item.model, item.serialNumber, item.notes})
            QCOMPARE(text, trimmed);
    }

    void idAndHistoryStay()
    {
        Equipment before = makeItem(7, u"X"_s, EquipmentType::fins, {});
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
        QTest::newRow("a year") << u"Erogatore"_s << 365;
        QTest::newRow("two years") << u"Computer Subacqueo"_s << 730;
        QTest::newRow("own interval") << u"Faro"_s << 90;
        QTest::newRow("negative interval") << u"Ieri"_s << -1;
        QTest::newRow("unknown to the catalogue") << u"Zaino"_s << 365;
        QTest::newRow("deactivated") << u"Spento"_s << 365;
        QTest::newRow("case counts") << u"faro"_s << 365;
    }

    void nextServiceDate()
    {
        QFETCH(QString, type);
        QFETCH(int, days);
        RegisterFixture f;
        EquipmentTypeModel inactive = makeType(u"Spento"_s, 10);
        inactive.isActive = false;
        f.types.setTypes(f.types.types() +
                         QList<EquipmentTypeModel>{makeType(u"Faro"_s, 90), makeType(u"Ieri"_s, -1), inactive});
        f.settings.setDefaultServiceInterval(30); // has no say here
        EquipmentFormState state = filled();
        state.selectedTypeName = type;
        state.lastServiceDate = f.inDays(-100);
        QCOMPARE(state.calculateNextServiceDate(f.types, f.almanac), f.inDays(days - 100));
    }

    void nextServiceDateBeyondTheCalendarIsNow()
    {
        RegisterFixture f;
        f.types.setTypes({makeType(u"Eterno"_s, std::numeric_limits<std::int64_t>::max())});
        EquipmentFormState state = filled();
        state.selectedTypeName = u"Eterno"_s;
        state.lastServiceDate = f.inDays(-1);
        QCOMPARE(state.calculateNextServiceDate(f.types, f.almanac), f.clock.now());
    }

    void defaultType_data()
    {
        QTest::addColumn<QStringList>("offered");
        QTest::addColumn<QString>("chosen");
        QTest::newRow("regulator") << QStringList{u"Altro"_s, u"Erogatore"_s} << u"Erogatore"_s;
        QTest::newRow("first") << QStringList{u"GAV"_s, u"Pinne"_s} << u"GAV"_s;
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
        const QList<EquipmentTypeModel> offered{makeType(u"GAV"_s), makeType(u"Zaino"_s)};
        QCOMPARE(availableTypes(offered, u"GAV"_s), offered);
        QCOMPARE(availableTypes(offered, QString()), offered);
        const auto available = availableTypes(offered, u"Faro"_s);
        QCOMPARE(available.first(2), offered);
        QCOMPARE(available.last(), (EquipmentTypeModel{stableUUID(u"Faro"_s), u"Faro"_s, u"questionmark.circle.fill"_s,
                                                       u"gray"_s, 365, true}));
        QCOMPARE(availableTypes({}, u"Faro"_s).size(), 1);
        QCOMPARE(availableTypes(offered, u"gav"_s).size(), 3); // letter case counts
    }
};

ABISSORA_TEST(tst_EquipmentFormState);

#include "tst_EquipmentFormState.moc"
