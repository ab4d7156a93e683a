// SPDX-License-Identifier: MIT
#include "ClippedTexts.h"
#include "ComponentTest.h"
#include "Literals.h"
#include "ScaledText.h"
#include "ShownHelp.h"

#include <QAction>
#include <QToolButton>

using namespace abissora;
using namespace abissora::test;

class tst_HelpView : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { applyTheme(*qApp, Scheme::Light); }

    void opensAtTheFirstSection();
    void aClickSelects();
    void theArrowsSelect();
    void enterSelectsTheRowOfTheKeyboard();
    void aScreenReaderSelects();
    void theSearchNarrowsTheIndex();
    void aSearchThatIsDictatedCounts();
    void theSelectionMovesToTheFirstMatchAndStays();
    void nothingFoundIsSaid();
    void blanksAroundTheSearchAreShownAsTyped();
    void theSearchIsNoMarkup();
    void afterNothingFoundTheReaderPicks();
    void theClearMarkEmptiesTheSearch();
    void everyNewViewStartsAfresh();
    void aMissingGuideIsExplained();
    void anEmptyGuideShowsTheEmptyState();
    void controlFGoesToTheSearch();
    void escapeClearsTheSearchAndThenGoesOn();
    void downGoesFromTheSearchToTheFirstResult();
    void enterGoesFromTheSearchToTheFirstResult();
    void theTabKeyGoesInReadingOrder();
    void everythingHasAName();
    void whatTakesTheFocusSaysWhatItIs();
    void noTextIsClipped_data();
    void noTextIsClipped();
    void theSchemeSwitchesLive();
};

void tst_HelpView::opensAtTheFirstSection()
{
    ShownHelp shown;
    activate(shown.view);
    QVERIFY(visibleLabels(shown.view).contains(u"Aiuto"_s));
    QVERIFY(visibleLabels(shown.view).contains(u"Guida all'uso di Abissora"_s));
    QCOMPARE(shown.search.placeholderText(), u"Cerca nella guida…"_s);
    QCOMPARE(shown.rows(), (QStringList{u"Primi passi"_s, u"Manutenzioni"_s, u"Tipologie e qualità"_s}));
    QCOMPARE(shown.selectedRow(), 0);
    QCOMPARE(shown.pageTitle(), u"Primi passi"_s);
}

void tst_HelpView::aClickSelects()
{
    ShownHelp shown;
    activate(shown.view);
    shown.click(2);
    QCOMPARE(shown.selectedRow(), 2);
    QCOMPARE(shown.pageTitle(), u"Tipologie e qualità"_s);
}

void tst_HelpView::theArrowsSelect()
{
    ShownHelp shown;
    activate(shown.view);
    shown.list.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&shown.list, Qt::Key_Down);
    QCOMPARE(shown.pageTitle(), u"Manutenzioni"_s);
    QTest::keyClick(&shown.list, Qt::Key_End);
    QCOMPARE(shown.pageTitle(), u"Tipologie e qualità"_s);
}

void tst_HelpView::enterSelectsTheRowOfTheKeyboard()
{
    ShownHelp shown;
    activate(shown.view);
    type(shown.view, u"helpSearch", u"rebreather"_s);
    type(shown.view, u"helpSearch", u"scontrino"_s);
    QCOMPARE(shown.selectedRow(), -1);
    shown.list.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&shown.list, Qt::Key_Return);
    QCOMPARE(shown.selectedRow(), 0);
    QCOMPARE(shown.pageTitle(), u"Manutenzioni"_s);
}

void tst_HelpView::aScreenReaderSelects()
{
    ShownHelp shown;
    activate(shown.view);
    shown.list.selectionModel()->select(shown.list.model()->index(1, 0), QItemSelectionModel::ClearAndSelect);
    QCOMPARE(shown.pageTitle(), u"Manutenzioni"_s);
}

void tst_HelpView::theSearchNarrowsTheIndex()
{
    ShownHelp shown;
    activate(shown.view);
    type(shown.view, u"helpSearch", u"MANUTENZIONE"_s);
    QCOMPARE(shown.rows(), (QStringList{u"Primi passi"_s, u"Manutenzioni"_s}));
    QCOMPARE(shown.selectedRow(), 0);
    type(shown.view, u"helpSearch", u"   "_s);
    QCOMPARE(shown.rows().size(), qsizetype(3));
}

void tst_HelpView::aSearchThatIsDictatedCounts()
{
    ShownHelp shown;
    activate(shown.view);
    QAccessible::queryAccessibleInterface(&shown.search)->setText(QAccessible::Value, u"scontrino"_s);
    QCOMPARE(shown.rows(), QStringList{u"Manutenzioni"_s});
}

void tst_HelpView::theSelectionMovesToTheFirstMatchAndStays()
{
    ShownHelp shown;
    activate(shown.view);
    type(shown.view, u"helpSearch", u"scontrino"_s);
    QCOMPARE(shown.rows(), QStringList{u"Manutenzioni"_s});
    QCOMPARE(shown.selectedRow(), 0);
    QCOMPARE(shown.pageTitle(), u"Manutenzioni"_s);
    QTest::keyClick(&shown.search, Qt::Key_Escape);
    QCOMPARE(shown.rows().size(), qsizetype(3));
    QCOMPARE(shown.selectedRow(), 1);
    QCOMPARE(shown.pageTitle(), u"Manutenzioni"_s);
}

void tst_HelpView::nothingFoundIsSaid()
{
    ShownHelp shown;
    activate(shown.view);
    QVERIFY(!visibleLabels(shown.view).contains(u"Seleziona un argomento"_s));
    type(shown.view, u"helpSearch", u"rebreather"_s);
    const auto& said = part<QLabel>(shown.view, u"noResult");
    QCOMPARE(said.text(), u"Nessun risultato per\n\"rebreather\""_s);
    QVERIFY(said.alignment().testFlag(Qt::AlignHCenter));
    QVERIFY(!shown.list.isVisible());
    QVERIFY(!shown.page.isVisible());
    QVERIFY(visibleLabels(shown.view).contains(u"Seleziona un argomento"_s));
    QVERIFY(visibleLabels(shown.view).contains(u"Scegli una sezione dall'indice a sinistra per leggere la guida."_s));
}

void tst_HelpView::blanksAroundTheSearchAreShownAsTyped()
{
    ShownHelp shown;
    activate(shown.view);
    type(shown.view, u"helpSearch", u" rebreather "_s);
    QVERIFY(visibleLabels(shown.view).contains(u"Nessun risultato per\n\" rebreather \""_s));
}

void tst_HelpView::theSearchIsNoMarkup()
{
    ShownHelp shown;
    activate(shown.view);
    type(shown.view, u"helpSearch", u"<b>%1</b>"_s);
    const auto& said = part<QLabel>(shown.view, u"noResult");
    QCOMPARE(said.text(), u"Nessun risultato per\n\"<b>%1</b>\""_s);
    QCOMPARE(said.textFormat(), Qt::PlainText);
}

void tst_HelpView::afterNothingFoundTheReaderPicks()
{
    ShownHelp shown;
    activate(shown.view);
    type(shown.view, u"helpSearch", u"rebreather"_s);
    QTest::keyClick(&shown.search, Qt::Key_Escape);
    QCOMPARE(shown.rows().size(), qsizetype(3));
    QCOMPARE(shown.selectedRow(), -1);
    QVERIFY(!shown.page.isVisible());
    QTest::keyClick(&shown.search, Qt::Key_Tab);
    QVERIFY(shown.list.hasFocus());
    QCOMPARE(shown.selectedRow(), -1);
    shown.click(1);
    QCOMPARE(shown.pageTitle(), u"Manutenzioni"_s);
}

void tst_HelpView::theClearMarkEmptiesTheSearch()
{
    ShownHelp shown;
    activate(shown.view);
    auto* const action = shown.search.findChild<QAction*>(u"clear"_s);
    QVERIFY(!action->isVisible());
    type(shown.view, u"helpSearch", u"scontrino"_s);
    QVERIFY(action->isVisible());
    QCOMPARE(action->toolTip(), u"Cancella la ricerca"_s);
    action->trigger();
    QVERIFY(shown.search.text().isEmpty());
    QVERIFY(!action->isVisible());
    QCOMPARE(shown.rows().size(), qsizetype(3));
}

void tst_HelpView::everyNewViewStartsAfresh()
{
    {
        ShownHelp shown;
        activate(shown.view);
        type(shown.view, u"helpSearch", u"scontrino"_s);
    }
    const ShownHelp again;
    QVERIFY(again.search.text().isEmpty());
    QCOMPARE(again.selectedRow(), 0);
}

void tst_HelpView::aMissingGuideIsExplained()
{
    ShownHelp shown(HelpLoader::load(u":/guide/none.md"_s));
    activate(shown.view);
    QCOMPARE(shown.rows(), QStringList{u"Guida non disponibile"_s});
    QCOMPARE(shown.selectedRow(), 0);
    QCOMPARE(shown.page.toPlainText(),
             u"Guida non disponibile\nIl file HELP.md non è presente nel bundle dell'app.\nApri la "
             "cartella dell'app e verifica che la guida sia stata inclusa tra le risorse."_s);
}

void tst_HelpView::anEmptyGuideShowsTheEmptyState()
{
    ShownHelp shown(QList<HelpSection>{});
    activate(shown.view);
    QVERIFY(shown.rows().isEmpty());
    QVERIFY(visibleLabels(shown.view).contains(u"Seleziona un argomento"_s));
    type(shown.view, u"helpSearch", u"a"_s);
    QVERIFY(visibleLabels(shown.view).contains(u"Nessun risultato per\n\"a\""_s));
}

void tst_HelpView::controlFGoesToTheSearch()
{
    ShownHelp shown;
    activate(shown.view);
    type(shown.view, u"helpSearch", u"manu"_s);
    shown.page.setFocus();
    QTest::keySequence(&shown.page, QKeySequence::Find);
    QVERIFY(shown.search.hasFocus());
    QCOMPARE(shown.search.selectedText(), u"manu"_s);
}

void tst_HelpView::escapeClearsTheSearchAndThenGoesOn()
{
    ShownHelp shown;
    activate(shown.view);
    type(shown.view, u"helpSearch", u"manu"_s);
    QTest::keyClick(&shown.search, Qt::Key_Escape);
    QVERIFY(shown.search.text().isEmpty());
    for (QWidget* widget : {static_cast<QWidget*>(&shown.search), static_cast<QWidget*>(&shown.list),
                            static_cast<QWidget*>(&shown.page)}) {
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QApplication::sendEvent(widget, &escape);
        QVERIFY2(!escape.isAccepted(), qPrintable(widget->objectName()));
    }
}

void tst_HelpView::downGoesFromTheSearchToTheFirstResult()
{
    ShownHelp shown;
    activate(shown.view);
    shown.click(1);
    type(shown.view, u"helpSearch", u"manutenzione"_s);
    QCOMPARE(shown.selectedRow(), 1);
    QTest::keyClick(&shown.search, Qt::Key_Down);
    QVERIFY(shown.list.hasFocus());
    QCOMPARE(shown.selectedRow(), 0);
    QCOMPARE(shown.pageTitle(), u"Primi passi"_s);
    QTest::keyClick(&shown.list, Qt::Key_Down);
    QCOMPARE(shown.pageTitle(), u"Manutenzioni"_s);
    type(shown.view, u"helpSearch", u"rebreather"_s);
    QTest::keyClick(&shown.search, Qt::Key_Down);
    QVERIFY(shown.search.hasFocus());
}

void tst_HelpView::enterGoesFromTheSearchToTheFirstResult()
{
    ShownHelp shown;
    activate(shown.view);
    shown.click(2);
    type(shown.view, u"helpSearch", u"scontrino"_s);
    QTest::keyClick(&shown.search, Qt::Key_Return);
    QVERIFY(shown.page.hasFocus());
    QCOMPARE(shown.pageTitle(), u"Manutenzioni"_s);
    const auto marks = shown.page.extraSelections();
    QCOMPARE(marks.size(), qsizetype(1));
    QCOMPARE(shown.page.textCursor().position(), marks.first().cursor.selectionStart());
    type(shown.view, u"helpSearch", u"rebreather"_s);
    QTest::keyClick(&shown.search, Qt::Key_Return);
    QVERIFY(shown.search.hasFocus());
}

void tst_HelpView::theTabKeyGoesInReadingOrder()
{
    ShownHelp shown;
    activate(shown.view);
    shown.search.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&shown.search, Qt::Key_Tab);
    QVERIFY(shown.list.hasFocus());
    QTest::keyClick(&shown.list, Qt::Key_Tab);
    QVERIFY(shown.page.hasFocus());
    QTest::keyClick(&shown.page, Qt::Key_Backtab);
    QVERIFY(shown.list.hasFocus());
}

void tst_HelpView::everythingHasAName()
{
    ShownHelp shown;
    activate(shown.view);
    for (QWidget* widget : shown.view.findChildren<QWidget*>()) {
        if (widget->focusPolicy() != Qt::NoFocus && widget->isVisible())
            QVERIFY2(!nameOf(*widget).isEmpty(), widget->metaObject()->className());
    }
    QCOMPARE(roleOf(shown.search), QAccessible::EditableText);
    QCOMPARE(roleOf(shown.list), QAccessible::List);
    QCOMPARE(QAccessible::queryAccessibleInterface(&shown.list)->child(1)->text(QAccessible::Name), u"Manutenzioni"_s);
}

void tst_HelpView::whatTakesTheFocusSaysWhatItIs()
{
    ShownHelp shown;
    activate(shown.view);
    for (QWidget* widget : shown.view.findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible())
            continue;
        const QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(widget);
        QVERIFY2(told->role() != QAccessible::Client && told->role() != QAccessible::NoRole,
                 qPrintable(widget->objectName()));
        QVERIFY2(!told->text(QAccessible::Name).isEmpty(), qPrintable(widget->objectName()));
    }
    QCOMPARE(QAccessible::queryAccessibleInterface(&shown.page)->role(), QAccessible::Document);
}

void tst_HelpView::noTextIsClipped_data()
{
    QTest::addColumn<QString>("search");
    QTest::newRow("a section") << QString();
    QTest::newRow("nothing found") << u"rebreather"_s;
    QTest::newRow("nothing found for a long word") << u"lunghissimaparola"_s.repeated(4);
}

void tst_HelpView::noTextIsClipped()
{
    QFETCH(const QString, search);
    for (const qreal factor : {1.0, 1.25}) {
        const ScaledText scaled(factor);
        ShownHelp shown(HelpLoader::load());
        activate(shown.view);
        type(shown.view, u"helpSearch", search);
        settle();
        const QStringList clipped = clippedTexts(shown.view);
        QStringList elided;
        for (int row = 0; row < shown.list.model()->rowCount() && shown.list.isVisible(); ++row) {
            const QModelIndex index = shown.list.model()->index(row, 0);
            QStyleOptionViewItem option;
            option.initFrom(&shown.list);
            if (shown.list.itemDelegate()->sizeHint(option, index).width() > shown.list.viewport()->width())
                elided.append(index.data().toString());
        }
        const QSize wanted = shown.view.minimumSizeHint();
        QCOMPARE(clipped, QStringList());
        QCOMPARE(elided, QStringList());
        QVERIFY(wanted.width() <= smallest.width() && wanted.height() <= smallest.height());
    }
}

void tst_HelpView::theSchemeSwitchesLive()
{
    ShownHelp shown;
    activate(shown.view);
    shown.search.clearFocus();
    applyTheme(*qApp, Scheme::Dark);
    settle();
    const QImage switched = shown.view.grab().toImage();
    ShownHelp fresh;
    activate(fresh.view);
    fresh.search.clearFocus();
    settle();
    QCOMPARE(switched, fresh.view.grab().toImage());
}

ABISSORA_TEST(tst_HelpView);
#include "tst_HelpView.moc"
