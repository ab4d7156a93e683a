// SPDX-License-Identifier: MIT
#include "DetailContent.h"
#include "Literals.h"

#include "RegisterFixture.h"
#include "TestRunner.h"

using namespace abissora;
using namespace abissora::test;

namespace {

DetailContent contentOf(RegisterFixture& f, const Equipment& item)
{
    return DetailContent::of(item, f.types, f.almanac);
}

QString valueOf(const DetailContent& content, const char* label)
{
    for (const auto& line : content.technicalDetails) {
        if (line.label == QLatin1String(label))
            return line.value;
    }
    return u"no such line"_s;
}

} // namespace

class tst_DetailContent : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void remaining_data()
    {
        QTest::addColumn<int>("days");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("due");
        QTest::newRow("31") << 31 << u"31 giorni"_s << false;
        QTest::newRow("30") << 30 << u"Scaduto"_s << true;
        QTest::newRow("0") << 0 << u"Scaduto"_s << true;
        QTest::newRow("past") << -400 << u"Scaduto"_s << true;
        QTest::newRow("thousands") << 4000 << u"4000 giorni"_s << false;
    }

    void remaining()
    {
        QFETCH(int, days);
        QFETCH(QString, text);
        QFETCH(bool, due);
        RegisterFixture f;
        const auto content = contentOf(f, makeItem(1, u"X"_s, EquipmentType::fins, f.inDays(days)));
        QCOMPARE(valueOf(content, "Giorni rimanenti"), text);
        QCOMPARE(content.isDue, due);
    }

    void linesInTheirOrder()
    {
        RegisterFixture f;
        Equipment item = makeItem(1, u"X"_s, EquipmentType::bcd, f.inDays(100));
        item.serialNumber = u"SU456789"_s;
        item.purchaseDate = f.inDays(-10);
        item.lastServiceDate = f.inDays(-1);
        QStringList lines;
        for (const auto& line : contentOf(f, item).technicalDetails)
            lines.append(line.label + u": "_s + line.value);
        QCOMPARE(lines, QStringList({u"Tipologia: GAV"_s, u"Numero Seriale: SU456789"_s,
                                     u"Data Acquisto: 5 giugno 2026"_s, u"Ultimo Tagliando: 14 giugno 2026"_s,
                                     u"Prossimo Tagliando: 23 settembre 2026"_s, u"Giorni rimanenti: 100 giorni"_s}));
    }

    void whatIsMissing()
    {
        RegisterFixture f;
        const auto content = contentOf(f, makeItem(1, u"X"_s, EquipmentType::bcd, f.inDays(1)));
        QCOMPARE(valueOf(content, "Numero Seriale"), u"Non specificato"_s);
        QCOMPARE(content.notes, u"Nessuna nota inserita"_s);
    }

    void pictureOfTheTypeRecordElseOfTheKind()
    {
        RegisterFixture f;
        Equipment item = makeItem(1, u"X"_s, EquipmentType::computer, f.inDays(1));
        f.types.setTypes({});
        QCOMPARE(contentOf(f, item).appearance, (TypeAppearance{u"dive.computer"_s, NamedColor::cyan}));
        EquipmentTypeModel type;
        type.name = u"Pallone"_s;
        type.icon = u"hammer.circle.fill"_s;
        type.color = u"pink"_s;
        type.isActive = true;
        f.types.setTypes({type});
        item.customTypeName = type.name;
        QCOMPARE(contentOf(f, item).appearance, (TypeAppearance{u"hammer.circle.fill"_s, NamedColor::pink}));
        QCOMPARE(contentOf(f, item).typeName, type.name);
        item.customTypeName = u"Ignoto"_s;
        item.type = EquipmentType::other;
        QCOMPARE(contentOf(f, item).appearance, (TypeAppearance{u"questionmark.circle.fill"_s, NamedColor::secondary}));
    }
};

ABISSORA_TEST(tst_DetailContent);

#include "tst_DetailContent.moc"
