// SPDX-License-Identifier: MIT
#include "DetailContent.h"

#include "ScreenFixture.h"
#include "TestRunner.h"

using namespace abissora;
using namespace abissora::test;

namespace {

DetailContent contentOf(ScreenFixture& f, const Equipment& item)
{
    return DetailContent::of(item, f.types, f.context.dates, f.calendar, f.clock.now());
}

QString valueOf(const DetailContent& content, const char* label)
{
    for (const auto& line : content.technicalDetails) {
        if (line.label == QLatin1String(label))
            return line.value;
    }
    return QStringLiteral("no such line");
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
        QTest::newRow("31") << 31 << QStringLiteral("31 giorni") << false;
        QTest::newRow("30") << 30 << QStringLiteral("Scaduto") << true;
        QTest::newRow("0") << 0 << QStringLiteral("Scaduto") << true;
        QTest::newRow("past") << -400 << QStringLiteral("Scaduto") << true;
        QTest::newRow("thousands") << 4000 << QStringLiteral("4000 giorni") << false;
    }

    void remaining()
    {
        QFETCH(int, days);
        QFETCH(QString, text);
        QFETCH(bool, due);
        ScreenFixture f;
        const auto content = contentOf(f, makeItem(1, QStringLiteral("X"), EquipmentType::fins, f.inDays(days)));
        QCOMPARE(valueOf(content, "Giorni rimanenti"), text);
        QCOMPARE(content.isDue, due);
    }

    void linesInTheirOrder()
    {
        ScreenFixture f;
        Equipment item = makeItem(1, QStringLiteral("X"), EquipmentType::bcd, f.inDays(100));
        item.serialNumber = QStringLiteral("SU456789");
        item.purchaseDate = f.inDays(-10);
        item.lastServiceDate = f.inDays(-1);
        QStringList lines;
        for (const auto& line : contentOf(f, item).technicalDetails)
            lines.append(line.label + QStringLiteral(": ") + line.value);
        QCOMPARE(lines, QStringList({QStringLiteral("Tipologia: GAV"), QStringLiteral("Numero Seriale: SU456789"),
                                     QStringLiteral("Data Acquisto: 5 giugno 2026"),
                                     QStringLiteral("Ultimo Tagliando: 14 giugno 2026"),
                                     QStringLiteral("Prossimo Tagliando: 23 settembre 2026"),
                                     QStringLiteral("Giorni rimanenti: 100 giorni")}));
    }

    void whatIsMissing()
    {
        ScreenFixture f;
        const auto content = contentOf(f, makeItem(1, QStringLiteral("X"), EquipmentType::bcd, f.inDays(1)));
        QCOMPARE(valueOf(content, "Numero Seriale"), QStringLiteral("Non specificato"));
        QCOMPARE(content.notes, QStringLiteral("Nessuna nota inserita"));
    }

    void pictureOfTheTypeRecordElseOfTheKind()
    {
        ScreenFixture f;
        Equipment item = makeItem(1, QStringLiteral("X"), EquipmentType::computer, f.inDays(1));
        f.types.setTypes({});
        QCOMPARE(contentOf(f, item).appearance, (TypeAppearance{QStringLiteral("dive.computer"), NamedColor::cyan}));
        EquipmentTypeModel type;
        type.name = QStringLiteral("Pallone");
        type.icon = QStringLiteral("hammer.circle.fill");
        type.color = QStringLiteral("pink");
        type.isActive = true;
        f.types.setTypes({type});
        item.customTypeName = type.name;
        QCOMPARE(contentOf(f, item).appearance,
                 (TypeAppearance{QStringLiteral("hammer.circle.fill"), NamedColor::pink}));
        QCOMPARE(contentOf(f, item).typeName, type.name);
        item.customTypeName = QStringLiteral("Ignoto");
        item.type = EquipmentType::other;
        QCOMPARE(contentOf(f, item).appearance,
                 (TypeAppearance{QStringLiteral("questionmark.circle.fill"), NamedColor::secondary}));
    }
};

ABISSORA_TEST(tst_DetailContent);

#include "tst_DetailContent.moc"
