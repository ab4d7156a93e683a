// SPDX-License-Identifier: MIT
#include "FilterMenu.h"

#include "Gui.h"
#include "TestRunner.h"

#include <QAccessible>
#include <QSignalSpy>

using namespace abissora;
using namespace abissora::test;

namespace {

EquipmentTypeModel type(const QString& name)
{
    EquipmentTypeModel type;
    type.name = name;
    return type;
}

/// The entries as screen readers read them, which is as they are drawn; a line between them is empty.
QStringList entries(FilterMenu& menu)
{
    QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(&menu);
    QStringList entries;
    for (int i = 0; i < accessible->childCount(); ++i)
        entries.append(accessible->child(i)->text(QAccessible::Name));
    return entries;
}

} // namespace

class tst_FilterMenu : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyTypeHasAnEntry()
    {
        FilterMenu menu;
        menu.setEntries({type(u"GAV"_s), type(u"Boa"_s)}, false);
        QCOMPARE(entries(menu), QStringList({u"Tutti"_s, QString(), u"GAV"_s, u"Boa"_s}));
        menu.setEntries({type(u"GAV"_s)}, true);
        QCOMPARE(entries(menu), QStringList({u"Tutti"_s, QString(), u"GAV"_s, QString(), u"Cancella filtri"_s}));
    }

    void namesAreShownAsTheyAre_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("between words") << u"Maschera & boccaglio"_s;
        QTest::newRow("before a letter") << u"A&B"_s;
        QTest::newRow("two") << u"A&&B"_s;
        QTest::newRow("at the end") << u"A&"_s;
    }

    void namesAreShownAsTheyAre()
    {
        QFETCH(const QString, name);
        FilterMenu menu;
        menu.setEntries({type(name)}, false);
        QCOMPARE(entries(menu).last(), name);
        QVERIFY(QKeySequence::mnemonic(menu.actions().last()->text()).isEmpty());
        QSignalSpy chosen(&menu, &FilterMenu::typeChosen);
        menu.actions().last()->trigger();
        QCOMPARE(chosen.takeFirst().first().toString(), name);
    }

    void choosing()
    {
        FilterMenu menu;
        menu.setEntries({type(u"GAV"_s)}, true);
        QSignalSpy all(&menu, &FilterMenu::allChosen);
        QSignalSpy cleared(&menu, &FilterMenu::clearChosen);
        action(menu, u"Tutti"_s)->trigger();
        QCOMPARE(all.size(), 1);
        action(menu, u"Cancella filtri"_s)->trigger();
        QCOMPARE(cleared.size(), 1);
    }

    void theButtonHasAName()
    {
        FilterMenu menu;
        const FilterButton button(menu);
        QCOMPARE(button.accessibleName(), u"Filtro"_s);
        QCOMPARE(button.menu(), static_cast<QMenu*>(&menu));
    }
};

ABISSORA_TEST(tst_FilterMenu);

#include "tst_FilterMenu.moc"
