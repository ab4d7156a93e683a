// SPDX-License-Identifier: MIT
#include "SidebarView.h"

#include "Gui.h"
#include "RegisterFixture.h"
#include "TestRunner.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QHelpEvent>
#include <QSignalSpy>
#include <QToolTip>

using namespace abissora;
using namespace abissora::test;

namespace {

void clickRow(SidebarView& view, const QString& text)
{
    const auto* model = view.model();
    for (int row = 0; row < model->rowCount(); ++row) {
        const QModelIndex index = model->index(row, 0);
        if (index.data().toString() == text && index.flags().testFlag(Qt::ItemIsSelectable)) {
            view.scrollTo(index);
            QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
            return;
        }
    }
    QFAIL(qPrintable(u"no row called "_s + text));
}

QStringList texts(const SidebarView& view)
{
    QStringList texts;
    for (int row = 0; row < view.model()->rowCount(); ++row)
        texts.append(view.model()->index(row, 0).data().toString());
    return texts;
}

} // namespace

class tst_SidebarView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void rows()
    {
        RegisterFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        QAbstractItemModelTester tester(view.model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
        const QStringList expected{u"Attrezzatura"_s,
                                   u"Tutti gli articoli"_s,
                                   u"Manutenzione scaduta"_s,
                                   u"Categorie"_s,
                                   u"Altro"_s,
                                   u"Bombola"_s,
                                   u"Bussola"_s,
                                   u"Cintura Zavorra"_s,
                                   u"Computer Subacqueo"_s,
                                   u"Erogatore"_s,
                                   u"GAV"_s,
                                   u"Kit Pronto Soccorso"_s,
                                   u"Manometro"_s,
                                   u"Maschera"_s,
                                   u"Muta"_s,
                                   u"Muta Stagna"_s,
                                   u"Ossigeno"_s,
                                   u"Pinne"_s,
                                   u"Profondimetro"_s,
                                   u"Torcia"_s,
                                   QString(),
                                   u"Impostazioni"_s};
        QCOMPARE(texts(view), expected);
        QVERIFY(view.minimumWidth() >= 220);
    }

    void aNameThatIsCutHasAToolTip()
    {
        RegisterFixture f;
        EquipmentTypeModel type;
        type.id = SequentialIds::at(1);
        type.name = QString(200, u'm');
        f.types.addType(type);
        SidebarView view(f.equipment, f.types, f.console);
        view.resize(228, 900);
        activate(view);
        const auto toolTipOf = [&](const QString& text) {
            const int row = static_cast<int>(texts(view).indexOf(text));
            const QPoint place = view.visualRect(view.model()->index(row, 0)).center();
            QHelpEvent event(QEvent::ToolTip, place, view.viewport()->mapToGlobal(place));
            QCoreApplication::sendEvent(view.viewport(), &event);
            return QToolTip::text();
        };
        QCOMPARE(toolTipOf(u"GAV"_s), QString());
        QCOMPARE(toolTipOf(type.name), type.name);
        for (int row = 0; row < view.model()->rowCount(); ++row)
            QVERIFY(view.sizeHintForIndex(view.model()->index(row, 0)).width() < 450);
    }

    void aClickOnACategorySetsTheFilter()
    {
        RegisterFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        view.resize(228, 900);
        activate(view);
        QSignalSpy tab(&view, &SidebarView::tabRequested);
        QSignalSpy changed(&view, &SidebarView::selectedSidebarItemChanged);
        clickRow(view, u"GAV"_s);
        QCOMPARE(tab.takeFirst().constFirst().toInt(), 0);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(view.selectedSidebarItem(), std::optional(u"type_GAV"_s));
        QCOMPARE(f.equipment.filterTypeName(), std::optional(u"GAV"_s));
        settle();
        QCOMPARE(changed.size(), 1);
        QVERIFY(tab.isEmpty());
    }

    /// In one pass of the event loop, however many properties a verb changes.
    void theSelectionFollowsAFilterThatIsSetElsewhere()
    {
        RegisterFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        f.equipment.filterByTypeName(u"Muta"_s);
        settle();
        QCOMPARE(view.currentIndex().data().toString(), u"Muta"_s);
        QCOMPARE(f.takeLog().filter(u"Sincronizzazione"_s).size(), 1);
        f.equipment.resetFilters();
        settle();
        QCOMPARE(view.selectedSidebarItem(), std::optional(u"all"_s));
        QCOMPARE(view.currentIndex().data().toString(), u"Tutti gli articoli"_s);
    }

    void nothingSelectedShowsNoRow()
    {
        RegisterFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        QCOMPARE(view.currentIndex().data().toString(), u"Tutti gli articoli"_s);
        view.setSelectedSidebarItem(std::nullopt);
        QVERIFY(view.selectionModel()->selectedRows().isEmpty());
    }

    void badgeCountsWhatIsDue()
    {
        RegisterFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        const QModelIndex row = view.model()->index(2, 0);
        QCOMPARE(row.data(SidebarView::BadgeRole).toInt(), 2);
        QCOMPARE(row.data(Qt::AccessibleTextRole).toString(), u"Manutenzione scaduta, 2"_s);
        const QList<Equipment> all = f.equipment.equipment();
        for (const Equipment& item : all)
            f.equipment.deleteEquipment(item);
        settle();
        QVERIFY(!row.data(SidebarView::BadgeRole).isValid());
        QCOMPARE(row.data(Qt::AccessibleTextRole).toString(), u"Manutenzione scaduta"_s);
    }

    void keyboardSkipsTitlesAndDivider()
    {
        RegisterFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        view.show();
        QTest::keyClick(&view, Qt::Key_Down);
        QCOMPARE(view.selectedSidebarItem(), std::optional(u"maintenance"_s));
        QTest::keyClick(&view, Qt::Key_Down);
        QCOMPARE(view.selectedSidebarItem(), std::optional(u"type_Altro"_s));
        QTest::keyClick(&view, Qt::Key_End);
        QCOMPARE(view.selectedSidebarItem(), std::optional(u"settings"_s));
        QTest::keyClick(&view, Qt::Key_Up);
        QCOMPARE(view.selectedSidebarItem(), std::optional(u"type_Torcia"_s));
    }

    void typesAppearAndGo()
    {
        RegisterFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        view.setSelectedSidebarItem(u"type_GAV"_s);
        settle();
        f.console.clear();
        EquipmentTypeModel added;
        added.id = f.ids.next();
        added.name = u"Boa"_s;
        auto types = f.types.types();
        types.append(added);
        types.removeIf([](const EquipmentTypeModel& type) { return type.name == "GAV"_L1; });
        f.types.setTypes(types);
        settle();
        QVERIFY(texts(view).contains(u"Boa"_s));
        QVERIFY(!texts(view).contains(u"GAV"_s));
        // The item stays what it is, with no row to show it; nothing runs.
        QCOMPARE(view.selectedSidebarItem(), std::optional(u"type_GAV"_s));
        QVERIFY(view.selectionModel()->selectedRows().isEmpty());
        QCOMPARE(f.takeLog(), QStringList());
    }

    void accessibleRows()
    {
        RegisterFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&view);
        QVERIFY(list);
        QCOMPARE(list->role(), QAccessible::List);
        QCOMPARE(list->text(QAccessible::Name), u"Barra laterale"_s);
        QCOMPARE(list->child(2)->role(), QAccessible::ListItem);
        QCOMPARE(list->child(2)->text(QAccessible::Name), u"Manutenzione scaduta, 2"_s);
    }
};

ABISSORA_TEST(tst_SidebarView);

#include "tst_SidebarView.moc"
