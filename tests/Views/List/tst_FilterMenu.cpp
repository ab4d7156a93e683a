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
        menu.setEntries({type(u"GAV"_s), type(u"Boa"_s)}, std::nullopt, false);
        QCOMPARE(entries(menu), QStringList({u"Tutti"_s, QString(), u"GAV"_s, u"Boa"_s}));
        menu.setEntries({type(u"GAV"_s)}, std::nullopt, true);
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
        menu.setEntries({type(name)}, std::nullopt, false);
        QCOMPARE(entries(menu).constLast(), name);
        QVERIFY(QKeySequence::mnemonic(menu.actions().constLast()->text()).isEmpty());
        QSignalSpy chosen(&menu, &FilterMenu::typeChosen);
        menu.actions().constLast()->trigger();
        QCOMPARE(chosen.takeFirst().constFirst().toString(), name);
    }

    void theActiveTypeIsMarked()
    {
        const auto marked = [](const FilterMenu& menu) {
            QStringList texts;
            for (const QAction* entry : menu.actions()) {
                if (entry->isChecked())
                    texts.append(entry->text());
            }
            return texts;
        };
        FilterMenu menu;
        menu.setEntries({type(u"GAV"_s), type(u"Boa"_s)}, u"Boa"_s, true);
        QCOMPARE(marked(menu), QStringList(u"Boa"_s));
        QVERIFY(!action(menu, u"Cancella filtri"_s)->isCheckable());
        menu.setEntries({type(u"GAV"_s), type(u"Boa"_s)}, std::nullopt, false);
        QCOMPARE(marked(menu), QStringList(u"Tutti"_s));
        menu.setEntries({type(u"GAV"_s)}, u"Un altro"_s, true);
        QCOMPARE(marked(menu), QStringList());
    }

    void aLongNameIsBounded()
    {
        FilterMenu menu;
        const QString name(200, u'm');
        menu.setEntries({type(u"GAV"_s)}, std::nullopt, false);
        menu.setEntries({type(name)}, std::nullopt, false);
        QVERIFY(menu.sizeHint().width() < 450);
        const QAction& entry = *menu.actions().constLast();
        QVERIFY(entry.text().endsWith(u'…'));
        QCOMPARE(entry.toolTip(), name);
        QSignalSpy chosen(&menu, &FilterMenu::typeChosen);
        menu.actions().constLast()->trigger();
        QCOMPARE(chosen.takeFirst().constFirst().toString(), name);
    }

    void theButtonSaysThatAFilterIsOn()
    {
        FilterMenu menu;
        FilterButton button(menu);
        QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(&button);
        button.resize(30, 30);
        const QImage off = button.grab().toImage();
        button.setActiveFilter(u"Filtro: GAV"_s);
        QCOMPARE(accessible->text(QAccessible::Description), u"Filtro: GAV"_s);
        QCOMPARE(button.toolTip(), u"Filtro: GAV"_s);
        QVERIFY(button.grab().toImage() != off);
        button.setActiveFilter({});
        QCOMPARE(button.accessibleDescription(), QString());
        QCOMPARE(button.toolTip(), u"Filtro"_s);
        QCOMPARE(button.grab().toImage(), off);
    }

    void choosing()
    {
        FilterMenu menu;
        menu.setEntries({type(u"GAV"_s)}, std::nullopt, true);
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
