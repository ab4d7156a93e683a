// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "ScaledText.h"
#include "StatisticsView.h"

#include "ControlLook.h"
#include "OverviewParts.h"
#include "TestRunner.h"
#include "Theme.h"
#include "Tokens.h"

#include <QAccessible>
#include <QProgressBar>
#include <QScrollArea>
#include <QScrollBar>
#include <random>

using namespace abissora;
using namespace abissora::test;

namespace {

QStringList cards(qsizetype total, qsizetype active, qsizetype due, qsizetype expiring, qsizetype inOrder,
                  qsizetype types)
{
    return {u"Totale Attrezzatura: %1"_s.arg(total), u"Attrezzatura Attiva: %1"_s.arg(active),
            u"Manutenzioni Scadute: %1"_s.arg(due),  u"In Scadenza (30gg): %1"_s.arg(expiring),
            u"In Regola: %1"_s.arg(inOrder),         u"Tipologie: %1"_s.arg(types)};
}

struct ShownStatistics : ShownScreen
{
    explicit ShownStatistics(RegisterFixture& f, QSize size = {1050, 760})
        : ShownScreen(new StatisticsView(f.equipment, f.types), size)
    {}

    [[nodiscard]] QScrollArea& page() { return *window.findChild<StatisticsView*>()->findChild<QScrollArea*>(); }
    [[nodiscard]] QProgressBar& bar(int row) { return part<QProgressBar>(window, u"typeBar%1"_s.arg(row)); }

    /// "name count/total" of every row of the distribution.
    [[nodiscard]] QStringList distribution()
    {
        QStringList rows;
        for (int i = 0; isShown(window, u"typeName%1"_s.arg(i)); ++i) {
            const QProgressBar& shown = bar(i);
            const QString count = textOf(window, u"typeCount%1"_s.arg(i));
            if (count != QString::number(shown.value()))
                qFatal("bar and count differ in row %d", i);
            rows.append(u"%1 %2/%3"_s.arg(textOf(window, u"typeName%1"_s.arg(i)), count).arg(shown.maximum()));
        }
        return rows;
    }
};

EquipmentTypeModel type(int id, const QString& name, const QString& color)
{
    return {SequentialIds::at(30'000 + id), name, u"dive.tank"_s, color, 365, true};
}

} // namespace

class tst_StatisticsView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void freshSamples()
    {
        RegisterFixture f;
        ShownStatistics s(f);
        QCOMPARE(cardTexts(s.window), cards(3, 3, 2, 2, 1, 16));
        const QStringList rows = s.distribution();
        QCOMPARE(rows.size(), 16);
        QCOMPARE(rows.first(), u"Altro 0/3"_s);
        QCOMPARE(rows.last(), u"Torcia 0/3"_s);
        QVERIFY(rows.contains(u"Erogatore 1/3"_s));
        QVERIFY(rows.contains(u"GAV 1/3"_s));
        QVERIFY(rows.contains(u"Computer Subacqueo 1/3"_s));
    }

    void emptyRegister()
    {
        RegisterFixture f(QList<Equipment>{});
        ShownStatistics s(f);
        QCOMPARE(cardTexts(s.window), cards(0, 0, 0, 0, 0, 16));
        QCOMPARE(s.distribution(), QStringList());
        QCOMPARE(textOf(s.window, u"noEquipment"_s), u"Nessuna attrezzatura registrata"_s);
        f.equipment.addEquipment(makeItem(1, u"x"_s, EquipmentType::fins, f.inDays(31)));
        settle();
        QVERIFY(!isShown(s.window, u"noEquipment"_s));
        QCOMPARE(s.distribution().size(), 16);
        f.equipment.deleteEquipment(f.equipment.equipment().first());
        settle();
        QVERIFY(isShown(s.window, u"noEquipment"_s));
        QCOMPARE(s.distribution(), QStringList());
    }

    void noTypes()
    {
        RegisterFixture f;
        f.types.setTypes({});
        ShownStatistics s(f);
        QCOMPARE(cardTexts(s.window).constLast(), u"Tipologie: 0"_s);
        QCOMPARE(s.distribution(), QStringList());
        QVERIFY(!isShown(s.window, u"noEquipment"_s));
        QCOMPARE(textOf(s.window, u"noTypes"_s), u"Nessuna tipologia trovata"_s);
        EquipmentTypeModel type;
        type.name = u"Boa"_s;
        f.types.addType(type);
        settle();
        QVERIFY(!isShown(s.window, u"noTypes"_s));
        f.types.setTypes({});
        f.equipment.deleteEquipment(f.equipment.equipment().first());
        f.equipment.deleteEquipment(f.equipment.equipment().first());
        f.equipment.deleteEquipment(f.equipment.equipment().first());
        settle();
        QVERIFY(!isShown(s.window, u"noTypes"_s));
        QVERIFY(isShown(s.window, u"noEquipment"_s));
    }

    void whatCountsForAType()
    {
        RegisterFixture f(QList<Equipment>{});
        f.types.setTypes({type(1, u"GAV"_s, u"orange"_s), type(2, u"gav"_s, u"blue"_s), type(3, u"Boa"_s, u"red"_s),
                          type(4, u"Boa"_s, u"green"_s), type(5, u"Spenta"_s, u"green"_s)});
        QList<EquipmentTypeModel> types = f.types.types();
        types[4].isActive = false;
        f.types.setTypes(types);
        const auto add = [&f](int id, EquipmentType kind, const std::optional<QString>& custom, bool isActive) {
            Equipment item = makeItem(id, u"x"_s, kind, f.inDays(40));
            item.customTypeName = custom;
            item.isActive = isActive;
            f.equipment.addEquipment(item);
        };
        add(1, EquipmentType::bcd, std::nullopt, true);
        add(2, EquipmentType::bcd, QString(), true); // an empty name counts as absent
        add(3, EquipmentType::bcd, std::nullopt, false);
        add(4, EquipmentType::bcd, u"Boa"_s, true);
        add(5, EquipmentType::other, u"Spenta"_s, true);
        add(6, EquipmentType::mask, std::nullopt, true);
        ShownStatistics s(f);
        // By name in code-point order; types of one name count the same items; inactive items are in the total only.
        QCOMPARE(s.distribution(), QStringList({u"Boa 1/6"_s, u"Boa 1/6"_s, u"GAV 2/6"_s, u"gav 0/6"_s}));
        QCOMPARE(cardTexts(s.window), cards(6, 5, 0, 0, 6, 4));
    }

    void aThousandItems()
    {
        std::mt19937 random(11);
        const auto draw = [&random](int from, int to) { return std::uniform_int_distribution(from, to)(random); };
        const RegisterFixture zone;
        QList<Equipment> items;
        qsizetype active = 0;
        qsizetype due = 0;
        qsizetype expiring = 0;
        qsizetype inOrder = 0;
        qsizetype masks = 0;
        qsizetype lamps = 0;
        for (int i = 0; i < 1000; ++i) {
            const int left = draw(-60, 60);
            Equipment item = makeItem(i, u"x"_s, static_cast<EquipmentType>(draw(0, 8)), zone.inDays(left));
            item.isActive = draw(0, 4) != 0;
            if (draw(0, 3) == 0)
                item.customTypeName = u"Torcia"_s;
            active += item.isActive ? 1 : 0;
            due += item.isActive && left <= 30 ? 1 : 0;
            expiring += left >= 1 && left <= 30 ? 1 : 0;
            inOrder += left >= 31 ? 1 : 0;
            lamps += item.isActive && item.customTypeName ? 1 : 0;
            masks += item.isActive && !item.customTypeName && item.type == EquipmentType::mask ? 1 : 0;
            items.append(item);
        }
        RegisterFixture f(items);
        ShownStatistics s(f);
        QCOMPARE(cardTexts(s.window), cards(1000, active, due, expiring, inOrder, 16));
        QVERIFY(s.distribution().contains(u"Torcia %1/1000"_s.arg(lamps)));
        QVERIFY(s.distribution().contains(u"Maschera %1/1000"_s.arg(masks)));
        const ShownOverview overview(f);
        QCOMPARE(cardTexts(overview.window),
                 QStringList({u"Totale Articoli: 1000"_s, u"Manutenzioni Scadute: %1"_s.arg(due),
                              u"In Scadenza (30gg): %1"_s.arg(expiring), u"In Regola: %1"_s.arg(inOrder)}));
    }

    void typesAreFollowed()
    {
        RegisterFixture f;
        ShownStatistics s(f);
        EquipmentTypeModel bcd = *f.types.getTypeByName(u"GAV"_s);
        bcd.name = u"Gilet"_s;
        bcd.color = u"pink"_s;
        f.types.updateType(bcd);
        settle();
        QStringList rows = s.distribution();
        QVERIFY(rows.contains(u"Gilet 0/3"_s)); // the item keeps the old name
        QVERIFY(!rows.join(u' ').contains("GAV"_L1));
        QCOMPARE(barColor(&s.bar(static_cast<int>(rows.indexOf(u"Gilet 0/3"_s)))), std::optional(NamedColor::pink));
        f.types.deleteType(bcd);
        settle();
        rows = s.distribution();
        QCOMPARE(rows.size(), 15);
        QCOMPARE(cardTexts(s.window).constLast(), u"Tipologie: 15"_s);
        f.types.setSearchText(u"tor"_s);
        settle();
        QCOMPARE(s.distribution(), QStringList({u"Computer Subacqueo 1/3"_s, u"Erogatore 1/3"_s, u"Torcia 0/3"_s})
                                       .filter(u"tor"_s, Qt::CaseInsensitive));
        QCOMPARE(cardTexts(s.window).constLast(), u"Tipologie: %1"_s.arg(s.distribution().size()));
    }

    void barsAreDrawnInTheColourOfTheType()
    {
        RegisterFixture f;
        f.types.setTypes({type(1, u"GAV"_s, u"pink"_s), type(2, u"Zero"_s, u"green"_s)});
        for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
            applyTheme(*qApp, scheme);
            ShownStatistics s(f);
            const QImage full = s.bar(0).grab().toImage();
            const int middle = full.height() / 2;
            const Tokens& tokens = Tokens::of(scheme);
            QCOMPARE(full.pixelColor(full.width() / 6, middle), tokens.named(NamedColor::pink));
            QCOMPARE(full.pixelColor(full.width() * 2 / 3, middle), tokens.divider);
            const QImage none = s.bar(1).grab().toImage();
            QCOMPARE(none.pixelColor(8, middle), tokens.divider);
        }
        applyTheme(*qApp, Scheme::Light);
    }

    void columns()
    {
        RegisterFixture f;
        ShownStatistics s(f);
        const QWidget& card = part(s.window, u"distribution"_s);
        const QLabel& name = part<QLabel>(s.window, u"typeName0"_s);
        const auto left = [&card](const QWidget& widget) { return widget.mapTo(&card, QPoint()).x(); };
        QCOMPARE(left(name), 16 + 24 + 12);
        QVERIFY(name.width() >= 150);
        QCOMPARE(left(s.bar(0)), left(name) + name.width() + 12);
        const QWidget& count = part(s.window, u"typeCount0"_s);
        QVERIFY(count.width() >= 40);
        QCOMPARE(left(count) + count.width(), card.width() - 16);
        for (int row = 1; row < 16; ++row) {
            QCOMPARE(left(s.bar(row)), left(s.bar(0)));
            QCOMPARE(s.bar(row).width(), s.bar(0).width());
        }
    }

    void barsAreReadAsValues()
    {
        RegisterFixture f;
        ShownStatistics s(f);
        const qsizetype row = s.distribution().indexOf(u"GAV 1/3"_s);
        QAccessibleInterface* const bar = QAccessible::queryAccessibleInterface(&s.bar(static_cast<int>(row)));
        QCOMPARE(bar->role(), QAccessible::ProgressBar);
        QCOMPARE(bar->text(QAccessible::Name), u"GAV"_s);
        QCOMPARE(bar->valueInterface()->currentValue().toInt(), 1);
        QCOMPARE(bar->valueInterface()->maximumValue().toInt(), 3);
        QAccessibleInterface* const card = QAccessible::queryAccessibleInterface(&part(s.window, u"distribution"_s));
        QCOMPARE(card->text(QAccessible::Name), u"Distribuzione per Tipo"_s);
    }

    void theKeyboardScrollsWhatIsBelow()
    {
        RegisterFixture f;
        ShownStatistics s(f, {770, 660});
        QScrollBar& scrollBar = *s.page().verticalScrollBar();
        QVERIFY(scrollBar.maximum() > 0);
        part(s.window, u"neighbour"_s).setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(&s.page()));
        QCOMPARE(s.page().accessibleName(), u"Statistiche"_s);
        QTest::keyClick(&s.page(), Qt::Key_Down);
        QVERIFY(scrollBar.value() > 0);
        QTest::keyClick(&s.page(), Qt::Key_End);
        QCOMPARE(scrollBar.value(), scrollBar.maximum());
        QTest::keyClick(&s.page(), Qt::Key_Home);
        QCOMPARE(scrollBar.value(), 0);

        s.window.resize(770, 1060);
        settle();
        QCOMPARE(scrollBar.maximum(), 0);
        QCOMPARE(s.page().focusPolicy(), Qt::NoFocus);
    }

    void aLongNameBreaks()
    {
        RegisterFixture f;
        f.types.setTypes({type(1, QString(80, u'x'), u"red"_s), type(2, u"y"_s, u"red"_s)});
        ShownStatistics s(f);
        const QLabel& name = part<QLabel>(s.window, u"typeName0"_s);
        QVERIFY(name.height() > part(s.window, u"typeName1"_s).height() * 2);
        QCOMPARE(s.page().horizontalScrollBar()->maximum(), 0);
    }

    void theLogSaysNothingAndAHiddenScreenRests()
    {
        RegisterFixture f;
        StatisticsView view(f.equipment, f.types);
        const StatCard& total = *view.findChildren<StatCard*>().constFirst();
        view.show();
        QCOMPARE(total.value(), u"3"_s);
        view.hide();
        f.console.clear();
        f.types.resetToDefaults();
        f.equipment.deleteEquipment(f.equipment.equipment().first());
        settle();
        QCOMPARE(total.value(), u"3"_s);
        view.show();
        settle();
        QCOMPARE(total.value(), u"2"_s);
        QCOMPARE(f.takeLog(), QStringList(u"🗑️ Eliminato equipaggiamento: Erogatore Apeks XTX50"_s));
    }
};

ABISSORA_TEST(tst_StatisticsView);

#include "tst_StatisticsView.moc"
