// SPDX-License-Identifier: MIT
#include "TableColumns.h"

#include "Gui.h"
#include "ScaledText.h"
#include "TestRunner.h"
#include "TypeScale.h"
#include "WordWidths.h"

#include <QFontMetrics>
#include <QtMath>
#include <numeric>

using namespace abissora;
using namespace abissora::test;

namespace {

using enum EquipmentRow::Column;

ColumnTexts usualTexts()
{
    return {.names = {u"Bombola 15L acciaio"_s, u"Muta stagna trilaminato"_s},
            .typeNames = {u"Muta Stagna"_s},
            .brands = {u"Scubapro"_s, u"Big Blue"_s},
            .models = {u"15L 232 bar"_s},
            .dates = {u"30 settembre 2027"_s},
            .abbreviatedDates = {u"30 set 2027"_s},
            .remaining = {u"313 giorni"_s, u"SCADUTO!"_s}};
}

TableColumns measured(const ColumnTexts& texts = usualTexts())
{
    TableColumns columns;
    columns.measure(texts);
    return columns;
}

int sum(const TableColumns::Layout& layout)
{
    return std::accumulate(layout.widths.begin(), layout.widths.end(), 0);
}

int inner(const TableColumns::Layout& layout, int column)
{
    return layout.widths.at(static_cast<std::size_t>(column)) - TableColumns::leftPadding(column) -
           TableColumns::rightPadding;
}

QFontMetrics metrics(TextStyle style)
{
    return QFontMetrics(font(style));
}

} // namespace

class tst_TableColumns : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void columnsFillEveryWidth()
    {
        const TableColumns columns = measured();
        for (int width = 430; width < 1600; width += 7)
            QCOMPARE(sum(columns.layOut(width)), width);
    }

    void whatGivesWayFirst()
    {
        const TableColumns columns = measured();
        bool wholeDates = true;
        int nameLines = 1;
        for (int width = 1200; width > 380; --width) {
            const TableColumns::Layout layout = columns.layOut(width);
            QVERIFY(!layout.hasWholeDates || wholeDates); // once gone it never comes back
            QVERIFY(layout.nameLines >= nameLines);
            QVERIFY(!layout.hasWholeDates || layout.nameLines == 1);
            wholeDates = layout.hasWholeDates;
            nameLines = layout.nameLines;
            const QString date = wholeDates ? u"30 settembre 2027"_s : u"30 set 2027"_s;
            QVERIFY(metrics(TextStyle::Body).horizontalAdvance(date) <= inner(layout, NextServiceColumn));
            if (nameLines == 1) {
                const int icon = TableColumns::typeIconSize + TableColumns::typeIconGap;
                QVERIFY(metrics(TextStyle::BodyMedium).horizontalAdvance(u"Muta stagna trilaminato"_s) <=
                        inner(layout, NameColumn) - icon);
            }
        }
        QVERIFY(!wholeDates);
        QCOMPARE(nameLines, 2);
    }

    void nothingIsCutWhereNamesHaveTwoLines()
    {
        const TableColumns columns = measured();
        int width = 1200;
        while (columns.layOut(width).nameLines == 1)
            --width;
        const TableColumns::Layout layout = columns.layOut(width - 20);
        const int icon = TableColumns::typeIconSize + TableColumns::typeIconGap;
        for (const QString& name : usualTexts().names)
            QVERIFY(!cellLines(name, *WordWidths::of(font(TextStyle::BodyMedium)), inner(layout, NameColumn) - icon, 2)
                         .join(u' ')
                         .contains(u'…'));
        for (const QString& brand : usualTexts().brands)
            QVERIFY(!cellLines(brand, *WordWidths::of(font(TextStyle::Body)), inner(layout, BrandColumn), 2)
                         .join(u' ')
                         .contains(u'…'));
        QVERIFY(metrics(TextStyle::CaptionSemibold).horizontalAdvance(u"Azioni"_s) <= inner(layout, ActionsColumn) + 2);
    }

    void oneLongNameDoesNotTakeTheOthersRoom()
    {
        ColumnTexts texts = usualTexts();
        texts.names.append(QString(200, u'm'));
        texts.typeNames.append(QString(200, u'm'));
        const TableColumns::Layout layout = measured(texts).layOut(1100);
        QCOMPARE(sum(layout), 1100);
        QVERIFY(inner(layout, BrandColumn) >= metrics(TextStyle::Body).horizontalAdvance(u"Scubapro"_s));
        QVERIFY(layout.hasWholeDates);
    }

    void belowTheLeastWidthsTheTableScrolls() { QVERIFY(sum(measured().layOut(200)) > 200); }

    void largerTextAsksForMore()
    {
        const int usual = sum(measured().layOut(100));
        const ScaledText larger(1.6);
        QVERIFY(sum(measured().layOut(100)) > usual * 5 / 4);
    }

    void anOwnWidthStands()
    {
        TableColumns columns = measured();
        columns.setOwnWidth(BrandColumn, 200);
        for (const int width : {600, 1000, 1400}) {
            const TableColumns::Layout layout = columns.layOut(width);
            QCOMPARE(layout.widths.at(BrandColumn), 200);
            QCOMPARE(sum(layout), width);
        }
        columns.setOwnWidth(BrandColumn, 1'000'000);
        QVERIFY(*columns.ownWidth(BrandColumn) <= TableColumns::mostOwnWidth);
        columns.setOwnWidth(BrandColumn, -5);
        QVERIFY(*columns.ownWidth(BrandColumn) > 0);
        columns.setOwnWidth(BrandColumn, std::nullopt);
        QCOMPARE(columns.layOut(1000).widths, measured().layOut(1000).widths);
    }

    void textsBreakBetweenWordsOnly()
    {
        WordWidths& body = *WordWidths::of(font(TextStyle::Body));
        const int width = qCeil(body.advance(u"Computer Su"_s));
        QCOMPARE(cellLines(u"Computer Suunto"_s, body, width, 2), (QStringList{u"Computer"_s, u"Suunto"_s}));
        QCOMPARE(cellLines(u"Computer"_s, body, width, 2), QStringList{u"Computer"_s});
        QVERIFY(cellLines(u"Computer Suunto"_s, body, width, 1).constFirst().endsWith(u'…'));
        QVERIFY(cellLines(u"Computer Suunto di riserva"_s, body, width, 2).constLast().endsWith(u'…'));
        const QStringList oneWord = cellLines(QString(40, u'm'), body, width, 2);
        QCOMPARE(oneWord.size(), 1);
        QVERIFY(oneWord.first().endsWith(u'…'));
    }
};

ABISSORA_TEST(tst_TableColumns);

#include "tst_TableColumns.moc"
