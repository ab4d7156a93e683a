// SPDX-License-Identifier: MIT
#include "EquipmentTableView.h"
#include "Painting.h"
#include "Picture.h"
#include "RegisterFixture.h"
#include "TypeScale.h"

#include <QPainter>

using namespace abissora;
using namespace abissora::test;

namespace {

using Column = EquipmentRow::Column;

constexpr QStyle::State keyboardFocus = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
constexpr int cellWidth = 190;

enum Row { Usual, Due, Inactive, LongTexts };

/// The table over one row of each kind.
struct Table
{
    Table()
    {
        QList<Equipment> items{makeItem(1, u"Erogatore"_s, EquipmentType::regulator, f.inDays(200)),
                               makeItem(2, u"Bombola"_s, EquipmentType::cylinder, f.inDays(-3)),
                               makeItem(3, u"Maschera"_s, EquipmentType::mask, f.inDays(90)),
                               makeItem(4, QString(90, u'l'), EquipmentType::other, f.inDays(90))};
        items[Inactive].isActive = false;
        items[LongTexts].customTypeName = items[LongTexts].brand = items[LongTexts].model = QString(90, u'l');
        view.showEquipment(items, {f.types, f.almanac}, std::nullopt);
    }

    [[nodiscard]] EquipmentTableDelegate& delegate() const
    {
        return *static_cast<EquipmentTableDelegate*>(view.itemDelegate());
    }
    [[nodiscard]] const EquipmentTableModel& model() const
    {
        return *static_cast<const EquipmentTableModel*>(view.model());
    }
    [[nodiscard]] QSize cellSize() const { return {cellWidth, delegate().rowHeight()}; }
    [[nodiscard]] QModelIndex index(Row row, Column column) const { return view.model()->index(row, column); }

    RegisterFixture f;
    EquipmentTableView view;
};

} // namespace

class tst_EquipmentTableDelegate : public PictureTest
{
    Q_OBJECT

private:
    /// The texts and pictures of a cell on what is behind them.
    static QStringList judgeContent(const Table& table, const Picture& cell, Row row, Column column,
                                    const QColor& ground)
    {
        const int width = cell.rect().width();
        const int bottom = cell.rect().height() - 3; // above the line between rows
        const int half = cell.rect().height() / 2;
        const QRect lead(3, 3, 28, bottom - 3);
        const QRect upper(3, 3, width - 6, half - 3);
        const QRect lower(3, half + 5, width - 6, bottom - half - 5); // free of what hangs down from above
        const bool due = row == Due;
        const bool active = row != Inactive;
        switch (column) {
        case Column::NameColumn:
            return {cell.inked(lead, ground, tokens().named(table.model().row(row).appearance.color)),
                    cell.inked(upper.adjusted(33, 0, 0, 0), ground, tokens().text),
                    cell.inked(lower.adjusted(33, 0, 0, 0), ground, tokens().secondaryText)};
        case Column::NextServiceColumn:
            return {cell.inked(upper, ground, tokens().text),
                    cell.inked(lower, ground, due ? tokens().danger : tokens().secondaryText)};
        case Column::StateColumn:
            return {cell.inked(QRect(3, 3, 15, bottom - 3), ground,
                               tokens().named(active ? NamedColor::green : NamedColor::gray)),
                    cell.inked(QRect(20, 3, width - 23, bottom - 3), ground, tokens().text)};
        case Column::ActionsColumn:
            return {cell.inked(QRect(width / 2 - 10, half - 10, 20, 20), ground, tokens().secondaryText)};
        default:
            return {cell.inked(QRect(3, 3, width - 6, bottom - 3), ground, tokens().text)};
        }
    }

private Q_SLOTS:
    void everyCellShowsItsContent_data()
    {
        QTest::addColumn<Row>("row");
        QTest::newRow("usual") << Usual;
        QTest::newRow("due") << Due;
        QTest::newRow("inactive") << Inactive;
        QTest::newRow("long texts") << LongTexts;
    }

    void everyCellShowsItsContent()
    {
        QFETCH(const Row, row);
        const Table table;
        const struct
        {
            QStyle::State state;
            int hoveredRow = -1;
            QColor ground;
        } looks[]{{{}, -1, tokens().surface},
                  {QStyle::State_Selected, -1, tokens().selection},
                  {{}, row, mix(tokens().surface, tokens().text, 0.03)},
                  {QStyle::State_Selected, row, tokens().selection},
                  {{}, row + 1, tokens().surface}};
        for (const auto& look : looks) {
            table.delegate().setHover(look.hoveredRow, false);
            for (int column = 0; column < Column::ColumnCount; ++column) {
                const auto place = static_cast<Column>(column);
                const Picture cell =
                    drawnItem(table.view, table.index(row, place), table.cellSize(), tokens().surface, look.state);
                QCOMPARE(cell.contained(), fine);
                QCOMPARE(cell.filled(cell.rect(), look.ground), fine);
                QCOMPARE(cell.filled(QRect(0, cell.rect().height() - 1, cellWidth, 1), tokens().divider, 1), fine);
                for (const QString& judgement : judgeContent(table, cell, row, place, look.ground))
                    QVERIFY2(judgement == fine, qPrintable(u"column %1: %2"_s.arg(column).arg(judgement)));
            }
        }
    }

    void theFocusIsARing()
    {
        const Table table;
        // At the name the table rings the whole row.
        for (int column = Column::NameColumn + 1; column < Column::ColumnCount; ++column) {
            const Picture cell = drawnItem(table.view, table.index(Usual, static_cast<Column>(column)),
                                           table.cellSize(), tokens().surface, keyboardFocus);
            const QRect ring = column == Column::ActionsColumn ? EquipmentTableDelegate::actionButton(cell.rect())
                                                               : cell.rect().adjusted(1, 1, -1, -1);
            QCOMPARE(cell.framed(ring, tokens().accentInk, 2), fine);
            QCOMPARE(cell.contained(), fine);
            const Picture byMouse = drawnItem(table.view, table.index(Usual, static_cast<Column>(column)),
                                              table.cellSize(), tokens().surface, QStyle::State_HasFocus);
            QVERIFY(byMouse.framed(ring, tokens().accentInk, 2) != fine);
        }
    }

    void theActionButtonLightsUp()
    {
        const Table table;
        const QColor lit = mix(tokens().surface, tokens().text, 0.08);
        const auto amountLit = [&](int row, bool onButton) {
            table.delegate().setHover(row, onButton);
            const Picture cell =
                drawnItem(table.view, table.index(Usual, Column::ActionsColumn), table.cellSize(), tokens().surface);
            return cell.amount(EquipmentTableDelegate::actionButton(cell.rect()), lit);
        };
        QVERIFY(amountLit(Usual, true) > 200);
        QVERIFY(amountLit(Usual, false) < 20);
        QVERIFY(amountLit(Due, true) < 20);
    }

    void whatIsDueIsBold()
    {
        const Table table;
        const Picture cell =
            drawnItem(table.view, table.index(Due, Column::NextServiceColumn), table.cellSize(), tokens().surface);
        QFont bold = font(TextStyle::Caption);
        bold.setBold(true);
        const int half = cell.rect().height() / 2;
        const QRect lower(0, half - 2, cellWidth, half);
        const auto inkIn = [&](const QFont& font) {
            const Picture picture = drawn(cell.rect().size(), tokens().surface, [&](QPainter& painter) {
                painter.setFont(font);
                painter.setPen(tokens().danger);
                painter.drawText(lower, Qt::AlignLeft | Qt::AlignVCenter, u"SCADUTO!"_s);
            });
            return picture.amount(lower, tokens().danger);
        };
        const qreal plainInk = inkIn(font(TextStyle::Caption));
        const qreal boldInk = inkIn(bold);
        QVERIFY(cell.amount(lower, tokens().danger) > (plainInk + boldInk) / 2);
    }

    void longTextsEndInDots()
    {
        const Table table;
        for (const auto column : {Column::NameColumn, Column::BrandColumn, Column::ModelColumn}) {
            const Picture cell =
                drawnItem(table.view, table.index(LongTexts, column), table.cellSize(), tokens().surface);
            const int half = cell.rect().height() / 2;
            const bool twoLines = column == Column::NameColumn;
            QVERIFY(cell.endsInDots(QRect(31, 0, cellWidth - 31, twoLines ? half : 2 * half - 2), tokens().surface));
            QVERIFY(!twoLines || cell.endsInDots(QRect(31, half, cellWidth - 31, half - 2), tokens().surface));
            QCOMPARE(cell.bare(QRect(cellWidth - TableColumns::rightPadding, 0, TableColumns::rightPadding,
                                     cell.rect().height() - 2),
                               tokens().surface),
                     fine);
        }
        const Picture fits =
            drawnItem(table.view, table.index(Usual, Column::BrandColumn), table.cellSize(), tokens().surface);
        QVERIFY(!fits.endsInDots(fits.rect().adjusted(0, 0, 0, -2), tokens().surface));
    }

    void datesAreShownInTheFormOfTheColumn()
    {
        const Table table;
        const EquipmentRow row = table.model().row(Usual);
        const auto upperWidth = [&](int width, bool whole) {
            const QSize size(width, table.cellSize().height());
            table.delegate().setLayout({.widths = {}, .hasWholeDates = whole, .nameLines = 1});
            const Picture cell =
                drawnItem(table.view, table.index(Usual, Column::NextServiceColumn), size, tokens().surface);
            return cell.ink(QRect(0, 0, width, size.height() / 2), tokens().surface).bounds.width();
        };
        const QFontMetricsF body(font(TextStyle::Body));
        const qreal whole = body.horizontalAdvance(row.nextServiceDate);
        const qreal abbreviated = body.horizontalAdvance(row.nextServiceDateAbbreviated);
        QVERIFY(std::abs(upperWidth(200, true) - whole) < 4);
        QVERIFY(std::abs(upperWidth(200, false) - abbreviated) < 4);
    }
};

ABISSORA_TEST(tst_EquipmentTableDelegate);
#include "tst_EquipmentTableDelegate.moc"
