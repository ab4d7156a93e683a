// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "Literals.h"
#include "RecordJson.h"
#include "TestRunner.h"

#include <QFile>
#include <QTest>

using namespace abissora;
using test::at;

namespace {

QByteArray fixture(const char* name)
{
    QFile file(QStringLiteral(FIXTURES "/") + QLatin1String(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}

QUuid uuid(const char* text)
{
    return QUuid::fromString(QLatin1String(text));
}

QList<Equipment> register1()
{
    Maintenance full;
    full.id = uuid("9B2C6D6E-8C0B-4F0E-9E6A-0C1D2E3F4A5B");
    full.date = at("2025-03-14T09:26:53Z");
    full.type = MaintenanceType::annual;
    full.description = u"Revisione \"completa\"\n1º e 2º stadio"_s;
    full.performedBy = u"Officina Blu"_s;
    full.cost = 120.5;
    full.notes = u"C:\\foto\\perché.jpg 🤿"_s;
    full.nextServiceDate = at("2026-03-14T09:26:53Z");
    full.isCompleted = true;
    full.receiptFileName = u"0D9A4F4C-6F0B-4E57-8A53-6B0F3A1C2D4E.pdf"_s;
    full.certificateFileName = u"1E8B5F5D-7A1C-4F68-9B64-7C1A4B2D3E5F.PDF"_s;

    Maintenance early;
    early.id = uuid("A1B2C3D4-E5F6-4789-8ABC-DEF012345678");
    early.date = at("2024-02-29T23:59:59Z");
    early.type = MaintenanceType::other;
    early.cost = 45;
    early.nextServiceDate = at("2025-02-28T00:00:00Z");

    Equipment regulator;
    regulator.id = uuid("E621E1F8-C36C-495A-93FC-0C247A3E6E5F");
    regulator.name = u"Erogatore Artico"_s;
    regulator.type = EquipmentType::regulator;
    regulator.brand = u"Nordsee"_s;
    regulator.model = u"A2"_s;
    regulator.serialNumber = u"00123/45"_s;
    regulator.purchaseDate = at("2020-05-17T10:00:00Z");
    regulator.lastServiceDate = at("2025-03-14T09:26:53Z");
    regulator.nextServiceDate = at("2026-03-14T09:26:53Z");
    regulator.notes = u"Per acque fredde"_s;
    regulator.maintenanceHistory = {early, full};

    Equipment torch;
    torch.id = uuid("5F6E7D8C-9B0A-4C1D-8E2F-3A4B5C6D7E8F");
    torch.name = u"Torcia di riserva"_s;
    torch.type = EquipmentType::other;
    torch.purchaseDate = at("2023-07-01T22:00:00Z");
    torch.lastServiceDate = at("2023-07-01T22:00:00Z");
    torch.nextServiceDate = at("2024-07-01T22:00:00Z");
    torch.isActive = false;
    torch.customTypeName = u"Torcia"_s;
    return {regulator, torch};
}

QList<EquipmentTypeModel> types1()
{
    return {
        {uuid("0B1C2D3E-4F50-4617-8829-3A4B5C6D7E8F"), u"Computer Subacqueo"_s, u"dive.computer"_s, u"cyan"_s, 730,
         true},
        {uuid("C0FFEE00-1234-4567-89AB-CDEF01234567"), u"Scooter «Manta»"_s, u"questionmark.circle.fill"_s, u"gray"_s,
         90, false},
    };
}

} // namespace

/// One file for each form in which records were ever stored, never edited afterwards: all of them can be read for good.
/// The files end without a line feed, as stored values do.
class tst_StoredFormats : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void registerOfThisVersion()
    {
        QCOMPARE(decodeEquipment(fixture("equipment-1.json")).value(), register1());
        QCOMPARE(encode(register1()).value(), fixture("equipment-1.json"));
    }

    void typesOfThisVersion()
    {
        QCOMPARE(decodeTypes(fixture("types-1.json")).value(), types1());
        QCOMPARE(encode(types1()).value(), fixture("types-1.json"));
    }

    void registerBeforeCompletionAndAttachments()
    {
        QList<Equipment> expected = register1();
        Maintenance& record = expected[0].maintenanceHistory[1];
        record.isCompleted.reset();
        record.receiptFileName.reset();
        record.certificateFileName.reset();
        QCOMPARE(decodeEquipment(fixture("equipment-0.json")).value(), expected);
    }

    void registerWithLineBreaksAndOtherOrder()
    {
        QCOMPARE(decodeEquipment(fixture("equipment-1-by-hand.json")).value(), register1());
    }
};

ABISSORA_TEST(tst_StoredFormats);
#include "tst_StoredFormats.moc"
