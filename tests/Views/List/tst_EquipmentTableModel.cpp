// SPDX-License-Identifier: MIT
#include "EquipmentTableModel.h"

#include "RegisterFixture.h"
#include "TestRunner.h"

#include <QAbstractItemModelTester>
#include <QTextDocument>

using namespace abissora;
using namespace abissora::test;

namespace {

struct Filled
{
    explicit Filled(const std::optional<QList<Equipment>>& stored = std::nullopt)
        : f(stored)
    {
        show(f.equipment.equipment());
    }

    void show(const QList<Equipment>& items) { model.setEquipment(items, EquipmentRowMaker(f.types, f.almanac)); }
    [[nodiscard]] QVariant data(int row, int column, int role = Qt::DisplayRole) const
    {
        return model.data(model.index(row, column), role);
    }
    /// A tool tip as it is read: markup is drawn, not shown.
    [[nodiscard]] QString toolTip(int row, int column) const
    {
        QString tip = data(row, column, Qt::ToolTipRole).toString();
        if (!Qt::mightBeRichText(tip))
            return tip;
        QTextDocument drawn;
        drawn.setHtml(tip);
        return drawn.toPlainText();
    }

    RegisterFixture f;
    EquipmentTableModel model;
};

} // namespace

class tst_EquipmentTableModel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTheRulesOfAModel()
    {
        Filled filled;
        QAbstractItemModelTester tester(&filled.model, QAbstractItemModelTester::FailureReportingMode::Fatal);
        filled.show({});
        QCOMPARE(filled.model.rowCount(), 0);
        filled.show(filled.f.equipment.equipment());
        QCOMPARE(filled.model.rowCount(), 3);
        QCOMPARE(filled.model.columnCount(), 6);
        QCOMPARE(filled.model.rowCount(filled.model.index(0, 0)), 0);
    }

    void cellsAndTitles()
    {
        const Filled filled;
        QCOMPARE(filled.data(0, EquipmentTableModel::NameColumn).toString(), u"Erogatore Apeks XTX50\nErogatore"_s);
        QCOMPARE(filled.data(0, EquipmentTableModel::ActionsColumn).toString(), u"Azioni"_s);
        QCOMPARE(filled.model.headerData(3, Qt::Horizontal, Qt::DisplayRole).toString(), u"Prossimo Tagliando"_s);
        QVERIFY(!filled.model.headerData(6, Qt::Horizontal, Qt::DisplayRole).isValid());
        QVERIFY(!filled.model.headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
    }

    void rowsOfItems()
    {
        const Filled filled;
        QCOMPARE(filled.model.rowOf(filled.f.equipment.equipment().at(2).id), 2);
        QCOMPARE(filled.model.rowOf(SequentialIds::at(99'999)), -1);
    }

    void toolTipsHoldWhatANarrowColumnCutsOff()
    {
        const Filled filled;
        QCOMPARE(filled.toolTip(0, EquipmentTableModel::BrandColumn), u"Apeks"_s);
        QCOMPARE(filled.toolTip(0, EquipmentTableModel::ModelColumn), u"XTX50"_s);
        for (const int column : {EquipmentTableModel::NextServiceColumn, EquipmentTableModel::StateColumn})
            QVERIFY(!filled.data(0, column, Qt::ToolTipRole).isValid());
    }

    void whatLooksLikeMarkupIsShownAsItIs()
    {
        Equipment item = makeItem(1, u"<b>x</b>"_s, EquipmentType::fins, RegisterFixture().inDays(3));
        item.brand = u"A &amp; B"_s;
        item.model = u"<i>y</i>"_s;
        const Filled filled(QList<Equipment>{item});
        QCOMPARE(filled.toolTip(0, EquipmentTableModel::NameColumn).section(u'\n', 0, 0), u"<b>x</b>"_s);
        QCOMPARE(filled.toolTip(0, EquipmentTableModel::BrandColumn), u"A &amp; B"_s);
        QCOMPARE(filled.toolTip(0, EquipmentTableModel::ModelColumn), u"<i>y</i>"_s);
    }
};

ABISSORA_TEST(tst_EquipmentTableModel);

#include "tst_EquipmentTableModel.moc"
