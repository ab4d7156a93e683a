// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "MaintenanceDraft.h"
#include "RegisterFixture.h"
#include "ServiceInterval.h"
#include "TestRunner.h"

using namespace abissora;
using namespace abissora::test;

namespace {

EquipmentTypeModel typeCalled(const QString& name, std::int64_t days)
{
    EquipmentTypeModel type = equipmentType(1, name);
    type.serviceIntervalDays = days;
    return type;
}

/// A register of one item of this kind with this history.
struct Stored
{
    explicit Stored(const QList<Maintenance>& history = {}, EquipmentType kind = EquipmentType::regulator)
        : item(makeItem(1, u"Articolo"_s, kind, {}))
        , f(QList{with(history)})
    {}

    Equipment& with(const QList<Maintenance>& history)
    {
        item.maintenanceHistory = history;
        return item;
    }
    [[nodiscard]] QList<Maintenance> history() const { return f.equipment.equipment().first().maintenanceHistory; }

    Equipment item;
    RegisterFixture f;
};

MaintenanceFormState entered()
{
    return {
        .date = at("2026-06-01T10:00:00Z"),
        .type = MaintenanceType::test,
        .description = u"  Collaudo "_s,
        .performedBy = u" Blu "_s,
        .cost = 45.5,
        .isCompleted = false,
        .nextServiceDate = at("2028-06-01T10:00:00Z"),
        .notes = u"uno\r\ndue"_s,
    };
}

} // namespace

class tst_MaintenanceDraft : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void validity()
    {
        MaintenanceFormState state;
        QVERIFY(!state.isFormValid());
        state.description = u" "_s;
        QVERIFY(state.isFormValid());
    }

    void aRecordComesBackAsItWas()
    {
        Maintenance record = maintenance(1);
        record.receiptFileName = u"A.pdf"_s;
        record.isCompleted = false;
        QCOMPARE(MaintenanceFormState::of(record).appliedTo(record), record);
        record.isCompleted.reset();
        QVERIFY(MaintenanceFormState::of(record).isCompleted);
    }

    void everyValueIsTakenOverAsItStands()
    {
        Maintenance before = maintenance(1);
        before.certificateFileName = u"B.pdf"_s;
        const Maintenance after = entered().appliedTo(before);
        QCOMPARE(MaintenanceFormState::of(after), entered());
        QCOMPARE(after.id, before.id);
        QCOMPARE(after.certificateFileName, before.certificateFileName);
    }

    void newRecord()
    {
        Stored s;
        const auto draft = s.f.draft(s.item.id);
        QVERIFY(draft->isNew());
        MaintenanceFormState expected;
        expected.date = s.f.clock.now();
        expected.nextServiceDate = s.f.inDays(365);
        QCOMPARE(draft->initial(), expected);
        const int idsBefore = s.f.ids.count();
        draft->save(entered());
        Maintenance stored;
        stored.id = SequentialIds::at(idsBefore + 1);
        QCOMPARE(s.history(), QList({entered().appliedTo(stored)}));
        QCOMPARE(s.f.equipment.equipment().first().nextServiceDate, entered().nextServiceDate);
    }

    void storedRecord()
    {
        Stored s({maintenance(1), maintenance(2)});
        const auto draft = s.f.draft(s.item.id, maintenance(2));
        QVERIFY(!draft->isNew());
        QCOMPARE(draft->initial(), MaintenanceFormState::of(maintenance(2)));
        draft->save(entered());
        QCOMPARE(s.history(), QList({maintenance(1), entered().appliedTo(maintenance(2))}));
    }

    void interval_data()
    {
        QTest::addColumn<EquipmentType>("kind");
        QTest::addColumn<QString>("typeName");
        QTest::addColumn<int>("typeDays");
        QTest::addColumn<int>("ofItem");
        QTest::addColumn<int>("ofType");
        const auto regulator = EquipmentType::regulator;
        const auto computer = EquipmentType::computer;
        QTest::newRow("of the type") << regulator << u"Erogatore"_s << 180 << 180 << 180;
        QTest::newRow("unmatched") << regulator << u"Pinne"_s << 180 << 365 << 365;
        QTest::newRow("exact case") << regulator << u"erogatore"_s << 180 << 365 << 365;
        QTest::newRow("unmatched computer") << computer << u"Pinne"_s << 180 << 730 << 365;
        QTest::newRow("computer of a type") << computer << u"Computer Subacqueo"_s << 90 << 90 << 90;
        QTest::newRow("none") << regulator << u"Erogatore"_s << 0 << 1 << 0;
        QTest::newRow("negative") << regulator << u"Erogatore"_s << -5 << 1 << -5;
    }

    void interval()
    {
        QFETCH(EquipmentType, kind);
        QFETCH(QString, typeName);
        QFETCH(int, typeDays);
        Stored s({}, kind);
        s.f.types.setTypes({typeCalled(typeName, typeDays)});
        const auto draft = s.f.draft(s.item.id);
        QTEST(static_cast<int>(draft->intervalDays()), "ofItem");
        QCOMPARE(draft->initial().nextServiceDate, s.f.inDays(static_cast<int>(draft->intervalDays())));
        QTEST(static_cast<int>(serviceInterval::ofType(rawValue(kind), s.f.types.types())), "ofType");
    }

    void inactiveTypesAndUnknownItemsDoNotCount()
    {
        Stored s({}, EquipmentType::computer);
        EquipmentTypeModel inactive = typeCalled(u"Computer Subacqueo"_s, 10);
        inactive.isActive = false;
        s.f.types.setTypes({inactive});
        QCOMPARE(s.f.draft(s.item.id)->intervalDays(), 730);
        QCOMPARE(s.f.draft(SequentialIds::at(99))->intervalDays(), 365);
    }

    void intervalBeyondTheCalendar()
    {
        Stored s;
        s.f.types.setTypes({typeCalled(u"Erogatore"_s, std::numeric_limits<std::int64_t>::max())});
        const Instant date = s.f.inDays(-3);
        QCOMPARE(s.f.draft(s.item.id)->nextServiceDate(date), date);
    }

    /// Should the program end in between, the register never names a file that is gone.
    void theRegisterHasTheRecordBeforeAFileGoes()
    {
        Stored s({maintenance(1)});
        Maintenance record = maintenance(1);
        record.receiptFileName = s.f.storedDocument(u"a.pdf"_s);
        s.f.equipment.updateMaintenance(s.item.id, record);
        const auto draft = s.f.draft(s.item.id, record);
        draft->attachments().remove(DocumentSlot::Receipt);
        bool wasThere = false;
        connect(&s.f.equipment, &EquipmentViewModel::equipmentChanged, this, [&] {
            wasThere = !s.history().constFirst().receiptFileName && s.f.documents.url(*record.receiptFileName);
        });
        draft->save(draft->initial());
        QVERIFY(wasThere);
        QVERIFY(!s.f.documents.url(*record.receiptFileName));
    }

    void attachedToAnItemThatIsGone()
    {
        Stored s;
        const auto draft = s.f.draft(s.item.id);
        s.f.panel.answer(s.f.writePdf(u"a.pdf"_s));
        draft->attachments().attach(DocumentSlot::Receipt);
        const QString name = draft->attachments().name(DocumentSlot::Receipt).value();
        QVERIFY(s.f.documents.url(name));
        s.f.equipment.deleteEquipment(s.item);
        draft->save(entered());
        QVERIFY(s.f.equipment.equipment().isEmpty());
        QVERIFY(!s.f.documents.url(name));
    }
};

ABISSORA_TEST(tst_MaintenanceDraft);

#include "tst_MaintenanceDraft.moc"
