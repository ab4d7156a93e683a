// SPDX-License-Identifier: MIT
#include "TypeManagement.h"

#include "Fakes.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QTest>
#include <limits>

using namespace abissora;
using namespace abissora::test;

namespace {

EquipmentTypeModel named(int id, const QString& name, bool isActive = true)
{
    return {SequentialIds::at(id), name, u"dive.reel"_s, u"teal"_s, 90, isActive};
}

const QList<EquipmentTypeModel> types{named(1, u"Muta"_s), named(2, u"Muta Stagna"_s), named(3, u"Boa"_s, false)};

} // namespace

class tst_TypeManagement : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void typesAreSearchedByName_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QList<EquipmentTypeModel>>("found");
        QTest::newRow("nothing typed") << QString() << types;
        QTest::newRow("within") << u"uta"_s << types.mid(0, 2);
        QTest::newRow("letter case") << u"MUTA S"_s << types.mid(1, 1);
        QTest::newRow("not a pattern") << u"."_s << QList<EquipmentTypeModel>();
    }

    void typesAreSearchedByName()
    {
        QFETCH(QString, text);
        QTEST(typesNamed(text, types), "found");
    }

    void onlyActiveTypesCount()
    {
        QCOMPARE(activeTypesText(activeTypes(types)), u"2 tipologie attive"_s);
        QCOMPARE(activeTypesText(activeTypes({})), u"0 tipologie attive"_s);
    }

    void intervalsAreInDays()
    {
        QCOMPARE(daysText(365), u"365 giorni"_s);
        QCOMPARE(intervalText(1'234'567), u"Intervallo: 1234567 giorni"_s);
        QCOMPARE(intervalText(std::numeric_limits<std::int64_t>::min()), u"Intervallo: -9223372036854775808 giorni"_s);
    }

    void deletionNamesTheType_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"Pinne", "L'\"erogatore\"", "%1 %2 %L1", "<b>Boa</b>&nbsp;", ""})
            QTest::newRow(name) << QString::fromUtf8(name);
    }

    void deletionNamesTheType()
    {
        QFETCH(QString, name);
        QCOMPARE(deletionQuestion(named(1, name)), "Sei sicuro di voler eliminare la tipologia '"_L1 + name + "'?"_L1);
    }

    void deletionWithoutAType()
    {
        QCOMPARE(deletionQuestion(std::nullopt), u"Sei sicuro di voler eliminare questa tipologia?"_s);
    }
};

ABISSORA_TEST(tst_TypeManagement);
#include "tst_TypeManagement.moc"
