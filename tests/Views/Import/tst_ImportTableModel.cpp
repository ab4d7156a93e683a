// SPDX-License-Identifier: MIT
#include "ImportParts.h"
#include "TestRunner.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

using namespace abissora;
using namespace abissora::test;

class tst_ImportTableModel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAModel()
    {
        ImportRegister f;
        ImportPlan plan = f.plan(clubTable);
        ImportTableModel model(plan, f.types);
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(model.rowCount(), 5);
        QCOMPARE(model.columnCount(), 8);
        for (const char* other : {"Marca\nMares\n", "Nome\nMuta\n"}) // the first without names
            model.setPlan(f.plan(other));
        model.toggle(0);
    }

    void cellsSayWhatWouldBeStored()
    {
        ImportRegister f;
        ImportPlan plan = f.plan(clubTable);
        const ImportTableModel model(plan, f.types);
        const auto text = [&model](int row, int column) { return model.index(row, column).data().toString(); };
        QCOMPARE(text(0, 1), u"Erogatore MK25"_s);
        QCOMPARE(text(2, 1), u"GAV di prova\ngià presente"_s);
        QCOMPARE(text(3, 6), u"Data non valida: 31/02/2024"_s);
        QCOMPARE(text(4, 6), u"15/04/2028"_s);
        QCOMPARE(model.headerData(6, Qt::Horizontal, Qt::DisplayRole).toString(), u"Prossimo Tagliando"_s);
        QCOMPARE(model.headerData(7, Qt::Horizontal, Qt::DisplayRole).toString(), u"Non importare"_s);
        const auto appearance = model.cell(model.index(1, 2)).appearance;
        QCOMPARE(appearance.value().icon, u"dive.tank"_s);
        QVERIFY(!model.cell(model.index(1, 1)).appearance);
    }

    void onlyRowsWithoutFaultsAreChosen()
    {
        ImportRegister f;
        ImportPlan plan = f.plan(clubTable);
        ImportTableModel model(plan, f.types);
        const QSignalSpy choices(&model, &ImportTableModel::choiceChanged);
        QVERIFY(!model.flags(model.index(3, 0)).testFlag(Qt::ItemIsEnabled));
        QVERIFY(model.flags(model.index(2, 0)).testFlag(Qt::ItemIsUserCheckable));
        model.toggle(3);
        QVERIFY(!model.setData(model.index(3, 0), Qt::Checked, Qt::CheckStateRole));
        QCOMPARE(choices.size(), 0);
        model.toggle(2);
        QVERIFY(model.setData(model.index(0, 0), Qt::Unchecked, Qt::CheckStateRole));
        QCOMPARE(choices.size(), 2);
        QCOMPARE(plan.chosenCount(), 3);
        QVERIFY(plan.isChosen(2) && !plan.isChosen(0));
    }

    void withoutNamesTheRowsStandAsTheyAre()
    {
        ImportRegister f;
        ImportPlan plan = f.plan("uno;due\r\n'=x;12/05/2027\r\n");
        ImportTableModel model(plan, f.types);
        QVERIFY(!plan.columnsProblem().isEmpty());
        QCOMPARE(model.rowCount(), 1);
        QCOMPARE(model.index(0, 1).data().toString(), u"=x"_s);
        QCOMPARE(model.index(0, 3).data().toString(), QString()); // the column that the file has not
        model.toggle(0);
        QCOMPARE(model.index(0, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
    }
};

ABISSORA_TEST(tst_ImportTableModel);
#include "tst_ImportTableModel.moc"
