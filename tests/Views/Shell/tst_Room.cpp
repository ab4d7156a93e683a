// SPDX-License-Identifier: MIT
#include "ClippedTexts.h"
#include "EquipmentTableDelegate.h"
#include "ScaledText.h"
#include "ShellFixture.h"
#include "TestRunner.h"
#include "TypeScale.h"
#include "WordWidths.h"

#include <QHeaderView>
#include <QScrollBar>

using namespace abissora;
using namespace abissora::test;

namespace {

using enum EquipmentRow::Column;

constexpr QSize smallest(1000, 700);

QList<Equipment> usualItems(const RegisterFixture& f)
{
    const auto item = [&](int id, const QString& name, EquipmentType type, const QString& brand, const QString& model,
                          int days) {
        Equipment made = makeItem(id, name, type, f.inDays(days));
        made.brand = brand;
        made.model = model;
        return made;
    };
    return {item(1, u"Bombola 15L acciaio"_s, EquipmentType::cylinder, u"Faber"_s, u"15L 232 bar"_s, -20),
            item(2, u"Computer Suunto EON Core"_s, EquipmentType::computer, u"Suunto"_s, u"EON Core"_s, 14),
            item(3, u"GAV Scubapro Hydros"_s, EquipmentType::bcd, u"Scubapro"_s, u"Hydros Pro"_s, 30),
            item(4, u"Torcia principale"_s, EquipmentType::other, u"Big Blue"_s, u"VTL8000P"_s, 113),
            item(5, u"Muta stagna trilaminato"_s, EquipmentType::drysuit, u"Santi"_s, u"Motion+"_s, 193),
            item(6, u"Maschera di riserva"_s, EquipmentType::mask, u"Cressi"_s, u"F1"_s, 313),
            item(7, u"Erogatore Apeks XTX50"_s, EquipmentType::regulator, u"Apeks"_s, u"XTX50"_s, 365)};
}

/// The texts of the table that end in dots.
QStringList cutTexts(const EquipmentTableView& table)
{
    QStringList cut;
    const auto inner = [&](int column) {
        return table.columnWidth(column) - TableColumns::leftPadding(column) - TableColumns::rightPadding;
    };
    const auto check = [&](const QString& text, TextStyle style, int width, int lines) {
        if (cellLines(text, *WordWidths::of(font(style)), width, lines).constLast().endsWith(u'…'))
            cut.append(text);
    };
    const auto& model = static_cast<const EquipmentTableModel&>(*table.model());
    const int name = inner(NameColumn) - TableColumns::typeIconSize - TableColumns::typeIconGap;
    for (int i = 0; i < model.rowCount(); ++i) {
        const EquipmentRow row = model.row(i);
        check(row.name, TextStyle::BodyMedium, name, 2);
        check(row.typeName, TextStyle::Caption, name, 1);
        check(row.brand, TextStyle::Body, inner(BrandColumn), 2);
        check(row.model, TextStyle::Body, inner(ModelColumn), 2);
        check(row.nextServiceDateAbbreviated, TextStyle::Body, inner(NextServiceColumn), 1);
        check(row.state, TextStyle::Caption, inner(StateColumn) - TableColumns::dotSize - TableColumns::dotGap, 1);
    }
    return cut;
}

} // namespace

class tst_Room : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void inTheSmallestWindowEveryColumnCanBeRead()
    {
        ShellFixture f(usualItems(RegisterFixture()));
        ShownWindow s(f, std::nullopt, smallest);
        s.table().selectRow(1);
        settle();
        QCOMPARE(s.window.size(), smallest);
        QVERIFY(isShown(s.window, u"detailPane"_s));
        QVERIFY(s.sidebar().width() >= 220);
        QCOMPARE(cutTexts(s.table()), QStringList());
        QCOMPARE(s.table().horizontalScrollBar()->maximum(), 0);
    }

    void largerTextIsNotCut_data()
    {
        QTest::addColumn<double>("factor");
        QTest::addColumn<QSize>("size");
        for (const double factor : {1.3, 1.6}) {
            QTest::addRow("%.1f, smallest", factor) << factor << smallest;
            QTest::addRow("%.1f, usual", factor) << factor << QSize(1280, 800);
        }
    }

    void largerTextIsNotCut()
    {
        QFETCH(const double, factor);
        QFETCH(const QSize, size);
        const ScaledText larger(factor);
        ShellFixture f;
        ShownWindow s(f, std::nullopt, size);
        s.table().selectRow(0);
        settle();
        QCOMPARE(s.window.size(), size);
        QCOMPARE(clippedTexts(s.window.content()), QStringList());
        // No pane reaches out of the window, and no word of a title is in pieces.
        const QWidget& pane = part(s.window, u"detailPane"_s);
        QVERIFY(pane.mapTo(&s.window, pane.rect().bottomRight()).x() < s.window.width());
        const QLabel& title = part<QLabel>(s.window, u"listTitle"_s);
        for (const QString& word : title.text().split(u' '))
            QVERIFY(title.fontMetrics().horizontalAdvance(word) <= title.width());
        const QHeaderView& header = *s.table().horizontalHeader();
        QVERIFY(header.height() >= 2 * QFontMetrics(font(TextStyle::CaptionSemibold)).height());
    }

    void titlesStandOnOneLine_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("smallest") << smallest;
        QTest::newRow("usual") << QSize(1280, 800);
    }

    void titlesStandOnOneLine()
    {
        QFETCH(const QSize, size);
        ShellFixture f;
        ShownWindow s(f, std::nullopt, size);
        s.table().selectRow(0);
        settle();
        const auto middle = [&](QAnyStringView name) {
            const QWidget& title = part(s.window, name);
            return title.mapTo(&s.window, title.rect().center()).y();
        };
        QVERIFY(std::abs(middle(u"listTitle"_s) - middle(u"detailTitle"_s)) <= 1);
    }

    void actionsStandInTwoEvenRows_data() { titlesStandOnOneLine_data(); }

    void actionsStandInTwoEvenRows()
    {
        QFETCH(const QSize, size);
        ShellFixture f;
        ShownWindow s(f, std::nullopt, size);
        s.table().selectRow(0);
        settle();
        const auto place = [&](QAnyStringView name) {
            const QWidget& button = part(s.window, name);
            return QRect(button.mapTo(&s.window, QPoint()), button.size());
        };
        const QRect edit = place(u"editEquipment"_s);
        const QRect add = place(u"addMaintenance"_s);
        const QRect toggle = place(u"toggleActive"_s);
        const QRect remove = place(u"deleteEquipment"_s);
        QCOMPARE(edit.top(), add.top());
        QCOMPARE(toggle.top(), remove.top());
        QVERIFY(toggle.top() > edit.bottom());
        QCOMPARE(toggle.left(), edit.left());
        QCOMPARE(toggle.right(), edit.right());
        QCOMPARE(remove.left(), add.left());
        QCOMPARE(remove.right(), add.right());
        for (const auto* name : {"editEquipment", "addMaintenance", "toggleActive", "deleteEquipment"}) {
            const QWidget& button = part(s.window, QLatin1StringView(name));
            QVERIFY(button.width() >= button.sizeHint().width());
        }
    }

    void columnsAreDraggedAndRemembered()
    {
        ShellFixture f;
        int dragged = 0;
        {
            ShownWindow s(f, std::nullopt, {1280, 800});
            QHeaderView& header = *s.table().horizontalHeader();
            const int border = header.sectionViewportPosition(ModelColumn) - 1;
            const QPoint handle(border, header.height() / 2);
            const int before = s.table().columnWidth(BrandColumn);
            const int name = s.table().columnWidth(NameColumn);
            QTest::mouseMove(header.viewport(), handle);
            QTest::mousePress(header.viewport(), Qt::LeftButton, {}, handle);
            QMouseEvent move(QEvent::MouseMove, handle + QPoint(30, 0),
                             header.viewport()->mapToGlobal(handle + QPoint(30, 0)), Qt::NoButton, Qt::LeftButton, {});
            QCoreApplication::sendEvent(header.viewport(), &move);
            QTest::mouseRelease(header.viewport(), Qt::LeftButton, {}, handle + QPoint(30, 0));
            dragged = s.table().columnWidth(BrandColumn);
            QCOMPARE(dragged, before + 30);
            QCOMPARE(s.table().columnWidth(NameColumn), name);
            QCOMPARE(s.table().horizontalScrollBar()->maximum(), 0);
            s.window.close();
        }
        ShownWindow again(f, std::nullopt, {1280, 800});
        QCOMPARE(again.table().columnWidth(BrandColumn), dragged);
        QHeaderView& header = *again.table().horizontalHeader();
        const QPoint handle(header.sectionViewportPosition(ModelColumn) - 1, header.height() / 2);
        QTest::mouseDClick(header.viewport(), Qt::LeftButton, {}, handle);
        QVERIFY(again.table().columnWidth(BrandColumn) != dragged);
        QCOMPARE(again.table().ownColumnWidths(), QList<int>(ColumnCount, 0));
    }
};

ABISSORA_TEST(tst_Room);

#include "tst_Room.moc"
