// SPDX-License-Identifier: MIT
#include "MainWindow.h"
#include "ShellFixture.h"
#include "TestRunner.h"
#include "ViewSheet.h"

#include <QMenuBar>
#include <QSignalSpy>

using namespace abissora;
using namespace abissora::test;

namespace {

QMenu& fileMenu(const ShownWindow& s)
{
    return *s.window.menuBar()->actions().first()->menu();
}

QAction& entry(const ShownWindow& s, const QString& text)
{
    for (QAction* action : fileMenu(s).actions()) {
        if (action->text().remove(u'&') == text)
            return *action;
    }
    qFatal("no entry %s", qPrintable(text));
}

} // namespace

class tst_FileMenu : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void holdsWhatGoesInAndOut()
    {
        ShellFixture f;
        const ShownWindow s(f);
        QStringList entries;
        for (const QAction* action : fileMenu(s).actions()) {
            const QString shortcut = action->shortcut().toString(QKeySequence::PortableText);
            entries.append(action->isSeparator() ? QString(u"-"_s)
                                                 : QString(action->text().remove(u'&') + u' ' + shortcut).trimmed());
        }
        const QStringList expected{
            u"Aggiungi Ctrl+N"_s,
            u"Aggiorna F5"_s,
            u"-"_s,
            u"Importa…"_s,
            u"Esporta… Ctrl+E"_s,
            u"Stampa… Ctrl+P"_s,
            u"-"_s,
            u"Crea una copia…"_s,
            u"Ripristina…"_s,
            u"-"_s,
            u"Chiudi Ctrl+W"_s,
            QString(u"Esci "_s + QKeySequence(QKeySequence::Quit).toString(QKeySequence::PortableText)).trimmed()};
        QCOMPARE(entries, expected);
    }

    void accessKeysAreItsOwn()
    {
        ShellFixture f;
        const ShownWindow s(f);
        QString keys;
        for (const QAction* action : fileMenu(s).actions()) {
            if (const qsizetype at = action->text().indexOf(u'&'); at >= 0)
                keys += action->text().at(at + 1).toLower();
        }
        QCOMPARE(keys.size(), 9);
        for (const QChar key : std::as_const(keys))
            QCOMPARE(keys.count(key), 1);
    }

    void asksForWhatOthersDo()
    {
        ShellFixture f;
        const ShownWindow s(f);
        const QSignalSpy imports(&s.window, &MainWindow::importRequested);
        const QSignalSpy exports(&s.window, &MainWindow::exportRequested);
        const QSignalSpy copies(&s.window, &MainWindow::copyRequested);
        entry(s, u"Importa…"_s).trigger();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_E, Qt::ControlModifier);
        entry(s, u"Crea una copia…"_s).trigger();
        QCOMPARE(imports.size(), 1);
        QCOMPARE(exports.size(), 1);
        QCOMPARE(copies.size(), 1);
    }

    void printsOverTheWindow()
    {
        ShellFixture f;
        const ShownWindow s(f);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_P, Qt::ControlModifier);
        settle();
        QCOMPARE(openDialog<ViewSheet>(s.window).windowTitle(), u"Stampa"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        settle();
        QVERIFY(!isDialogOpen(s.window));
    }
};

ABISSORA_TEST(tst_FileMenu);
#include "tst_FileMenu.moc"
