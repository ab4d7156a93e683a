// SPDX-License-Identifier: MIT
#include "ShellFixture.h"
#include "TestRunner.h"

#include <QMenuBar>

using namespace abissora;
using namespace abissora::test;

namespace {

QAction* restoreEntry(ShownWindow& s)
{
    const QMenu& file = *s.window.menuBar()->actions().first()->menu();
    for (QAction* entry : file.actions()) {
        if (entry->text().remove(u'&') == u"Ripristina…"_s)
            return entry;
    }
    qFatal("no way back");
}

/// As the opened menu shows it.
QString symbolOfRestore(ShownWindow& s)
{
    QMenu& file = *s.window.menuBar()->actions().first()->menu();
    file.popup(QPoint());
    file.close();
    return restoreEntry(s)->icon().name();
}

} // namespace

class tst_RestoreInTheWindow : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFileMenuOpensTheWayBack()
    {
        ShellFixture f;
        ShownWindow s(f);
        restoreEntry(s)->trigger();
        settle();
        QCOMPARE(openDialog(s.window).windowTitle(), u"Ripristina"_s);
        restoreEntry(s)->trigger(); // one is enough
        QCOMPARE(s.window.findChildren<ViewSheet*>().size(), 1);
        s.window.content().addEquipment();
        QVERIFY(!s.window.content().showingAddSheet());
        QTest::keyClick(&openDialog(s.window), Qt::Key_Escape);
        settle();
        QVERIFY(!isDialogOpen(s.window));
    }

    void theWayBackWarnsOfWhatNobodyHasLookedAt()
    {
        ShellFixture f;
        ShownWindow s(f);
        const QString usual = u"clock.arrow.circlepath"_s;
        const QString warning = u"exclamationmark.triangle.fill"_s;
        QCOMPARE(symbolOfRestore(s), usual);
        f.write(u"backups/20260615T090000.000Z-import/savedEquipment.json"_s, "[]");
        QCOMPARE(symbolOfRestore(s), usual);
        f.write(u"backups/20260615T091000.000Z-unreadable/savedEquipment.json"_s, "nonsense");
        QCOMPARE(restoreEntry(s)->icon().name(), usual); // until the menu is shown
        QCOMPARE(symbolOfRestore(s), warning);
        restoreEntry(s)->trigger(); // which shows the newest one
        settle();
        QTest::keyClick(&openDialog(s.window), Qt::Key_Escape);
        settle();
        QCOMPARE(symbolOfRestore(s), usual);
        f.write(u"backups/20260615T092000.000Z-emergency/savedEquipment.json"_s, "[]");
        QCOMPARE(symbolOfRestore(s), warning);
    }
};

ABISSORA_TEST(tst_RestoreInTheWindow);
#include "tst_RestoreInTheWindow.moc"
