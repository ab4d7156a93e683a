// SPDX-License-Identifier: MIT
#include "ClippedTexts.h"
#include "ComponentTest.h"
#include "ScaledText.h"
#include "ShownHelp.h"

#include <QAction>
#include <QToolButton>

using namespace abissora;
using test::ShownHelp;
using test::smallest;

class tst_HelpView : public test::ComponentTest
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
    void theProgramsGuideIsShown();
    void controlFGoesToTheSearch();
    void escapeClearsTheSearchAndThenGoesOn();
    void theTabKeyGoesInReadingOrder();
    void everythingHasAName();
    void noTextIsClipped_data();
    void noTextIsClipped();
    void theSchemeSwitchesLive();
};

void tst_HelpView::opensAtTheFirstSection()
{
    ShownHelp shown;
    activate(shown.view);
    QVERIFY(shown.label(QStringLiteral("Aiuto")) != nullptr);
    QVERIFY(shown.label(QStringLiteral("Guida all'uso di Abissora")) != nullptr);
    QCOMPARE(shown.search.placeholderText(), QStringLiteral("Cerca nella guida…"));
    QCOMPARE(shown.rows(), (QStringList{QStringLiteral("Primi passi"), QStringLiteral("Manutenzioni"),
                                        QStringLiteral("Tipologie e qualità")}));
    QCOMPARE(shown.selectedRow(), 0);
    QCOMPARE(shown.pageTitle(), QStringLiteral("Primi passi"));
}

void tst_HelpView::aClickSelects()
{
    ShownHelp shown;
    activate(shown.view);
    shown.click(2);
    QCOMPARE(shown.selectedRow(), 2);
    QCOMPARE(shown.pageTitle(), QStringLiteral("Tipologie e qualità"));
}

void tst_HelpView::theArrowsSelect()
{
    ShownHelp shown;
    activate(shown.view);
    shown.list.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&shown.list, Qt::Key_Down);
    QCOMPARE(shown.pageTitle(), QStringLiteral("Manutenzioni"));
    QTest::keyClick(&shown.list, Qt::Key_End);
    QCOMPARE(shown.pageTitle(), QStringLiteral("Tipologie e qualità"));
}

void tst_HelpView::enterSelectsTheRowOfTheKeyboard()
{
    ShownHelp shown;
    activate(shown.view);
    shown.type(QStringLiteral("rebreather"));
    shown.type(QStringLiteral("scontrino"));
    QCOMPARE(shown.selectedRow(), -1);
    shown.list.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&shown.list, Qt::Key_Return);
    QCOMPARE(shown.selectedRow(), 0);
    QCOMPARE(shown.pageTitle(), QStringLiteral("Manutenzioni"));
}

void tst_HelpView::aScreenReaderSelects()
{
    ShownHelp shown;
    activate(shown.view);
    shown.list.selectionModel()->select(shown.list.model()->index(1, 0), QItemSelectionModel::ClearAndSelect);
    QCOMPARE(shown.pageTitle(), QStringLiteral("Manutenzioni"));
}

void tst_HelpView::theSearchNarrowsTheIndex()
{
    ShownHelp shown;
    activate(shown.view);
    shown.type(QStringLiteral("MANUTENZIONE"));
    QCOMPARE(shown.rows(), (QStringList{QStringLiteral("Primi passi"), QStringLiteral("Manutenzioni")}));
    QCOMPARE(shown.selectedRow(), 0);
    shown.type(QStringLiteral("   "));
    QCOMPARE(shown.rows().size(), qsizetype(3));
}

void tst_HelpView::aSearchThatIsDictatedCounts()
{
    ShownHelp shown;
    activate(shown.view);
    QAccessible::queryAccessibleInterface(&shown.search)->setText(QAccessible::Value, QStringLiteral("scontrino"));
    QCOMPARE(shown.rows(), QStringList{QStringLiteral("Manutenzioni")});
}

void tst_HelpView::theSelectionMovesToTheFirstMatchAndStays()
{
    ShownHelp shown;
    activate(shown.view);
    shown.type(QStringLiteral("scontrino"));
    QCOMPARE(shown.rows(), QStringList{QStringLiteral("Manutenzioni")});
    QCOMPARE(shown.selectedRow(), 0);
    QCOMPARE(shown.pageTitle(), QStringLiteral("Manutenzioni"));
    QTest::keyClick(&shown.search, Qt::Key_Escape);
    QCOMPARE(shown.rows().size(), qsizetype(3));
    QCOMPARE(shown.selectedRow(), 1);
    QCOMPARE(shown.pageTitle(), QStringLiteral("Manutenzioni"));
}

void tst_HelpView::nothingFoundIsSaid()
{
    ShownHelp shown;
    activate(shown.view);
    QVERIFY(shown.label(QStringLiteral("Seleziona un argomento")) == nullptr);
    shown.type(QStringLiteral("rebreather"));
    const QLabel* const said = shown.label(QStringLiteral("Nessun risultato per\n\"rebreather\""));
    QVERIFY(said != nullptr);
    QVERIFY(said->alignment().testFlag(Qt::AlignHCenter));
    QVERIFY(!shown.list.isVisible());
    QVERIFY(!shown.page.isVisible());
    QVERIFY(shown.label(QStringLiteral("Seleziona un argomento")) != nullptr);
    QVERIFY(shown.label(QStringLiteral("Scegli una sezione dall'indice a sinistra per leggere la guida.")) != nullptr);
}

void tst_HelpView::blanksAroundTheSearchAreShownAsTyped()
{
    ShownHelp shown;
    activate(shown.view);
    shown.type(QStringLiteral(" rebreather "));
    QVERIFY(shown.label(QStringLiteral("Nessun risultato per\n\" rebreather \"")) != nullptr);
}

void tst_HelpView::theSearchIsNoMarkup()
{
    ShownHelp shown;
    activate(shown.view);
    shown.type(QStringLiteral("<b>%1</b>"));
    const QLabel* const said = shown.label(QStringLiteral("Nessun risultato per\n\"<b>%1</b>\""));
    QVERIFY(said != nullptr);
    QCOMPARE(said->textFormat(), Qt::PlainText);
}

void tst_HelpView::afterNothingFoundTheReaderPicks()
{
    ShownHelp shown;
    activate(shown.view);
    shown.type(QStringLiteral("rebreather"));
    QTest::keyClick(&shown.search, Qt::Key_Escape);
    QCOMPARE(shown.rows().size(), qsizetype(3));
    QCOMPARE(shown.selectedRow(), -1);
    QVERIFY(!shown.page.isVisible());
    QTest::keyClick(&shown.search, Qt::Key_Tab);
    QVERIFY(shown.list.hasFocus());
    QCOMPARE(shown.selectedRow(), -1);
    shown.click(1);
    QCOMPARE(shown.pageTitle(), QStringLiteral("Manutenzioni"));
}

void tst_HelpView::theClearMarkEmptiesTheSearch()
{
    ShownHelp shown;
    activate(shown.view);
    auto* const action = shown.search.findChild<QAction*>(QStringLiteral("clear"));
    QVERIFY(!action->isVisible());
    shown.type(QStringLiteral("scontrino"));
    QVERIFY(action->isVisible());
    QCOMPARE(action->toolTip(), QStringLiteral("Cancella la ricerca"));
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
        shown.type(QStringLiteral("scontrino"));
    }
    const ShownHelp again;
    QVERIFY(again.search.text().isEmpty());
    QCOMPARE(again.selectedRow(), 0);
}

void tst_HelpView::aMissingGuideIsExplained()
{
    ShownHelp shown(HelpLoader::load(QStringLiteral(":/guide/none.md")));
    activate(shown.view);
    QCOMPARE(shown.rows(), QStringList{QStringLiteral("Guida non disponibile")});
    QCOMPARE(shown.selectedRow(), 0);
    QCOMPARE(shown.page.toPlainText(),
             QStringLiteral("Guida non disponibile\nIl file HELP.md non è presente nel bundle dell'app.\nApri la "
                            "cartella dell'app e verifica che la guida sia stata inclusa tra le risorse."));
}

void tst_HelpView::anEmptyGuideShowsTheEmptyState()
{
    ShownHelp shown(QList<HelpSection>{});
    activate(shown.view);
    QVERIFY(shown.rows().isEmpty());
    QVERIFY(shown.label(QStringLiteral("Seleziona un argomento")) != nullptr);
    shown.type(QStringLiteral("a"));
    QVERIFY(shown.label(QStringLiteral("Nessun risultato per\n\"a\"")) != nullptr);
}

void tst_HelpView::theProgramsGuideIsShown()
{
    test::RecordingOpener opener;
    HelpView view(opener);
    activate(view);
    const auto* const list = view.findChild<QListView*>(QStringLiteral("helpSections"));
    QCOMPARE(list->model()->rowCount(), static_cast<int>(HelpLoader::load().size()));
}

void tst_HelpView::controlFGoesToTheSearch()
{
    ShownHelp shown;
    activate(shown.view);
    shown.type(QStringLiteral("manu"));
    shown.page.setFocus();
    QTest::keySequence(&shown.page, QKeySequence::Find);
    QVERIFY(shown.search.hasFocus());
    QCOMPARE(shown.search.selectedText(), QStringLiteral("manu"));
}

void tst_HelpView::escapeClearsTheSearchAndThenGoesOn()
{
    ShownHelp shown;
    activate(shown.view);
    shown.type(QStringLiteral("manu"));
    QTest::keyClick(&shown.search, Qt::Key_Escape);
    QVERIFY(shown.search.text().isEmpty());
    for (QWidget* widget : {static_cast<QWidget*>(&shown.search), static_cast<QWidget*>(&shown.list),
                            static_cast<QWidget*>(&shown.page)}) {
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QApplication::sendEvent(widget, &escape);
        QVERIFY2(!escape.isAccepted(), qPrintable(widget->objectName()));
    }
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
    QCOMPARE(QAccessible::queryAccessibleInterface(&shown.list)->child(1)->text(QAccessible::Name),
             QStringLiteral("Manutenzioni"));
}

void tst_HelpView::noTextIsClipped_data()
{
    QTest::addColumn<QString>("search");
    QTest::newRow("a section") << QString();
    QTest::newRow("nothing found") << QStringLiteral("rebreather");
    QTest::newRow("nothing found for a long word") << QStringLiteral("lunghissimaparola").repeated(4);
}

void tst_HelpView::noTextIsClipped()
{
    QFETCH(const QString, search);
    for (const qreal factor : {1.0, 1.25}) {
        const test::ScaledText scaled(factor);
        ShownHelp shown(HelpLoader::load());
        activate(shown.view);
        shown.type(search);
        QCoreApplication::processEvents();
        const QStringList clipped = test::clippedTexts(shown.view);
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
    QCoreApplication::processEvents();
    const QImage switched = shown.view.grab().toImage();
    ShownHelp fresh;
    activate(fresh.view);
    fresh.search.clearFocus();
    QCoreApplication::processEvents();
    QCOMPARE(switched, fresh.view.grab().toImage());
}

ABISSORA_TEST(tst_HelpView);
#include "tst_HelpView.moc"
