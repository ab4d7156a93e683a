// SPDX-License-Identifier: MIT
#include "Gui.h"
#include "Literals.h"
#include "RegisterFixture.h"
#include "SegmentedControl.h"
#include "SettingsGroupBox.h"
#include "SettingsGroups.h"
#include "Stepper.h"
#include "TestRunner.h"
#include "ToggleSwitch.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QVBoxLayout>

using namespace abissora;
using namespace abissora::test;

namespace {

/// The groups of preferences below one another, shown and active.
struct ShownGroups
{
    explicit ShownGroups(RegisterFixture& f)
    {
        auto* layout = new QVBoxLayout(&page);
        layout->addWidget(makeNotificationsGroup(f.settings));
        layout->addWidget(makeGeneralGroup(f.settings));
        layout->addWidget(makeAppearanceGroup(f.settings));
        activate(page);
    }

    ToggleSwitch& toggle(const char* name) { return usable<ToggleSwitch>(page, name); }
    Stepper& days() { return usable<Stepper>(page, "reminderDays"); }
    SegmentedControl& interval() { return usable<SegmentedControl>(page, "defaultServiceInterval"); }
    QLineEdit& currency() { return usable<QLineEdit>(page, "currencySymbol"); }
    QStringList segments()
    {
        QStringList texts;
        for (const QAbstractButton* segment : interval().findChildren<QAbstractButton*>())
            texts.append(segment->text() + (segment->isChecked() ? u"*"_s : QString()));
        return texts;
    }

    QWidget page;
};

QByteArray stored(const RegisterFixture& f, const char* key)
{
    QFile file(f.preferences.path(QLatin1String(key)));
    return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
}

} // namespace

class tst_SettingsGroups : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyStoreShowsTheDefaults()
    {
        RegisterFixture f;
        ShownGroups s(f);
        QVERIFY(s.toggle("notificationsEnabled").isChecked());
        QCOMPARE(s.days().text(), u"30 giorni"_s);
        QCOMPARE(s.segments(), QStringList({u"6 Mesi"_s, u"1 Anno*"_s, u"2 Anni"_s}));
        QCOMPARE(s.currency().text(), u"€"_s);
        QCOMPARE(s.currency().placeholderText(), u"Simbolo"_s);
        QVERIFY(!s.toggle("darkMode").isChecked());
    }

    void showingThemStoresNothing()
    {
        RegisterFixture f;
        ShownGroups s(f);
        f.settings.setReminderDays(44);
        for (const char* key : {"notificationsEnabled", "defaultServiceInterval", "currencySymbol", "darkMode"})
            QVERIFY2(!QFile::exists(f.preferences.path(QLatin1String(key))), key);
        QCOMPARE(s.days().text(), u"44 giorni"_s);
    }

    void aSwitchStoresAtOnce_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("first");
        QTest::addColumn<QByteArray>("second");
        QTest::newRow("notifications") << QByteArray("notificationsEnabled") << QByteArray("false")
                                       << QByteArray("true");
        QTest::newRow("dark mode") << QByteArray("darkMode") << QByteArray("true") << QByteArray("false");
    }

    void aSwitchStoresAtOnce()
    {
        QFETCH(const QByteArray, name);
        QFETCH(const QByteArray, first);
        QFETCH(const QByteArray, second);
        RegisterFixture f;
        ShownGroups s(f);
        const QSignalSpy changed(&f.settings, &SettingsViewModel::changed);
        QTest::mouseClick(&s.toggle(name.constData()), Qt::LeftButton);
        QCOMPARE(stored(f, name.constData()), first);
        QCOMPARE(changed.size(), 1);
        s.toggle(name.constData()).setFocus();
        QTest::keyClick(&s.toggle(name.constData()), Qt::Key_Space);
        QCOMPARE(stored(f, name.constData()), second);
        QCOMPARE(changed.size(), 2);
    }

    void whatAScreenReaderDoesIsStoredToo()
    {
        RegisterFixture f;
        ShownGroups s(f);
        QAccessibleInterface* dark = QAccessible::queryAccessibleInterface(&s.toggle("darkMode"));
        dark->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(f.settings.darkMode());
        QAccessibleInterface* symbol = QAccessible::queryAccessibleInterface(&s.currency());
        symbol->setText(QAccessible::Value, u"USD"_s);
        QCOMPARE(f.settings.currencySymbol(), u"USD"_s);
        QAccessibleInterface* years =
            QAccessible::queryAccessibleInterface(s.interval().findChildren<QAbstractButton*>().at(2));
        years->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(f.settings.defaultServiceInterval(), 730);
    }

    void theReminderMovesBySevenWithinItsRange_data()
    {
        QTest::addColumn<qint64>("from");
        QTest::addColumn<int>("key");
        QTest::addColumn<qint64>("to");
        QTest::newRow("30 up") << qint64{30} << int(Qt::Key_Up) << qint64{37};
        QTest::newRow("30 down") << qint64{30} << int(Qt::Key_Down) << qint64{23};
        QTest::newRow("7 down") << qint64{7} << int(Qt::Key_Down) << qint64{7};
        QTest::newRow("90 up") << qint64{90} << int(Qt::Key_Up) << qint64{90};
        QTest::newRow("86 up") << qint64{86} << int(Qt::Key_Up) << qint64{90};
    }

    void theReminderMovesBySevenWithinItsRange()
    {
        QFETCH(const qint64, from);
        QFETCH(const int, key);
        QFETCH(const qint64, to);
        RegisterFixture f;
        f.settings.setReminderDays(from);
        ShownGroups s(f);
        s.days().setFocus();
        QTest::keyClick(&s.days(), static_cast<Qt::Key>(key));
        QCOMPARE(f.settings.reminderDays(), to);
        QCOMPARE(s.days().text(), u"%1 giorni"_s.arg(to));
    }

    void everySegmentStoresItsDays()
    {
        RegisterFixture f;
        ShownGroups s(f);
        const QSignalSpy changed(&f.settings, &SettingsViewModel::changed);
        const QList<QAbstractButton*> segments = s.interval().findChildren<QAbstractButton*>();
        QTest::mouseClick(segments.at(0), Qt::LeftButton);
        QCOMPARE(f.settings.defaultServiceInterval(), 180);
        QTest::mouseClick(segments.at(2), Qt::LeftButton);
        QCOMPARE(f.settings.defaultServiceInterval(), 730);
        QTest::keyClick(segments.at(2), Qt::Key_Left);
        QCOMPARE(f.settings.defaultServiceInterval(), 365);
        QCOMPARE(changed.size(), 3);
    }

    void anIntervalOfItsOwnLeavesNoSegmentChosen()
    {
        RegisterFixture f;
        f.settings.setDefaultServiceInterval(200);
        ShownGroups s(f);
        QCOMPARE(s.interval().currentIndex(), -1);
        QVERIFY(s.segments().filter(u"*"_s).isEmpty());
        QCOMPARE(f.settings.defaultServiceInterval(), 200);
    }

    void everyLetterOfTheCurrencyIsStored()
    {
        RegisterFixture f;
        ShownGroups s(f);
        const QSignalSpy changed(&f.settings, &SettingsViewModel::currencySymbolChanged);
        s.currency().setFocus();
        s.currency().selectAll();
        QTest::keyClicks(&s.currency(), u"CHF"_s);
        QCOMPARE(stored(f, "currencySymbol"), QByteArray("\"CHF\""));
        QCOMPARE(changed.size(), 3);
        QTest::keyClick(&s.currency(), Qt::Key_Home);
        QTest::keyClicks(&s.currency(), u"x"_s);
        QCOMPARE(s.currency().text(), u"xCHF"_s);
        QCOMPARE(s.currency().cursorPosition(), 1);
        s.currency().selectAll();
        QTest::keyClick(&s.currency(), Qt::Key_Delete);
        QCOMPARE(f.settings.currencySymbol(), QString());
    }

    void aChangeFromElsewhereIsShown()
    {
        RegisterFixture f;
        ShownGroups s(f);
        f.settings.setNotificationsEnabled(false);
        f.settings.setReminderDays(14);
        f.settings.setDefaultServiceInterval(180);
        f.settings.setCurrencySymbol(u"$"_s);
        f.settings.setDarkMode(true);
        QVERIFY(!s.toggle("notificationsEnabled").isChecked());
        QCOMPARE(s.days().value(), 14);
        QCOMPARE(s.interval().currentIndex(), 0);
        QCOMPARE(s.currency().text(), u"$"_s);
        QVERIFY(s.toggle("darkMode").isChecked());
    }

    void whatCannotBeStoredStandsUntilItIs()
    {
        RegisterFixture f;
        ShownGroups s(f);
        // A folder in the file's place: the write fails whoever runs the test.
        QVERIFY(QDir().mkpath(f.preferences.path(u"darkMode"_s)));
        QTest::mouseClick(&s.toggle("darkMode"), Qt::LeftButton);
        QVERIFY(s.toggle("darkMode").isChecked());
        QVERIFY(f.takeLog().join(u'\n').startsWith(u"Error saving settings: "_s));
        QVERIFY(QDir().rmdir(f.preferences.path(u"darkMode"_s)));
        QCOMPARE(f.preferences.retry(), QStringList{u"darkMode"_s});
        QVERIFY(s.toggle("darkMode").isChecked());
    }

    void everyControlIsNamedByItsCaption()
    {
        RegisterFixture f;
        ShownGroups s(f);
        const auto name = [](QWidget& widget) {
            return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
        };
        QCOMPARE(name(s.toggle("notificationsEnabled")), u"Abilita Notifiche"_s);
        QCOMPARE(name(s.days()), u"Giorni di anticipo"_s);
        QCOMPARE(name(s.interval()), u"Intervallo Tagliando Default"_s);
        QCOMPARE(name(s.currency()), u"Simbolo Valuta"_s);
        QCOMPARE(name(s.toggle("darkMode")), u"Modalità Scura"_s);
    }
};

ABISSORA_TEST(tst_SettingsGroups);
#include "tst_SettingsGroups.moc"
