// SPDX-License-Identifier: MIT
#include "FileSizeLimit.h"
#include "Literals.h"
#include "SettingsViewModel.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"
#include "Timeline.h"

#include <QTest>
#include <limits>

using namespace abissora;

namespace {

constexpr std::array keys{"notificationsEnabled", "reminderDays", "defaultServiceInterval",
                          "currencySymbol",       "darkMode",     "checkForUpdatesOnLaunch"};

} // namespace

class tst_SettingsViewModel : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        test::TestCase::init();
        m_files.emplace();
        m_timeline.emplace();
        m_settings.emplace(m_files->preferences, *m_timeline);
        m_timeline->follow(*m_settings);
    }

    void cleanup() { m_settings.reset(); }

    void defaultsAreReadAndNotWritten()
    {
        compareDefaults();
        QCOMPARE(m_files->names(u"."_s), QStringList());
        QCOMPARE(m_timeline->take(), QStringList());
    }

    void everyValueIsStoredAtOnce()
    {
        setEverything();
        QCOMPARE(m_settings->notificationsEnabled(), false);
        QCOMPARE(m_settings->reminderDays(), std::int64_t(37));
        QCOMPARE(m_settings->defaultServiceInterval(), std::int64_t(730));
        QCOMPARE(m_settings->currencySymbol(), u"CHF \"è\""_s);
        QCOMPARE(m_settings->darkMode(), true);
        QCOMPARE(m_settings->checkForUpdatesOnLaunch(), true);
        QCOMPARE(storedValues(), QList<QByteArray>({"false", "37", "730", "\"CHF \\\"\xC3\xA8\\\"\"", "true", "true"}));

        PreferencesStore store = newStore();
        SettingsViewModel afterARestart(store, m_files->console);
        QCOMPARE(afterARestart.notificationsEnabled(), false);
        QCOMPARE(afterARestart.reminderDays(), std::int64_t(37));
        QCOMPARE(afterARestart.currencySymbol(), u"CHF \"è\""_s);
        QCOMPARE(afterARestart.darkMode(), true);
    }

    void nothingIsChecked()
    {
        m_settings->setReminderDays(-5);
        m_settings->setDefaultServiceInterval(std::numeric_limits<std::int64_t>::max());
        m_settings->setCurrencySymbol(QString());
        QCOMPARE(m_settings->reminderDays(), std::int64_t(-5));
        QCOMPARE(m_settings->defaultServiceInterval(), std::numeric_limits<std::int64_t>::max());
        QCOMPARE(m_settings->currencySymbol(), QString());
    }

    void valuesAreReadOnce()
    {
        m_files->write(u"preferences/darkMode.json"_s, "true");
        QCOMPARE(m_settings->darkMode(), true);
        QCOMPARE(m_settings->checkForUpdatesOnLaunch(), false);
        m_settings->setReminderDays(37);
        m_files->write(u"preferences/darkMode.json"_s, "false");
        m_files->write(u"preferences/checkForUpdatesOnLaunch.json"_s, "true");
        QVERIFY(QFile::remove(m_files->path(u"preferences/reminderDays.json"_s)));
        QCOMPARE(m_settings->darkMode(), true);
        QCOMPARE(m_settings->reminderDays(), std::int64_t(37));
        m_settings->setCurrencySymbol(u"CHF"_s);
        QCOMPARE(m_settings->darkMode(), true);
        QCOMPARE(m_settings->checkForUpdatesOnLaunch(), false);
        QCOMPARE(m_settings->reminderDays(), std::int64_t(37));
        QCOMPARE(m_files->names(u"preferences"_s),
                 QStringList({u"checkForUpdatesOnLaunch.json"_s, u"currencySymbol.json"_s, u"darkMode.json"_s}));
    }

    void valuesOfTheWrongTypeAreAbsent()
    {
        for (const char* name : keys)
            m_files->write(u"preferences/%1.json"_s.arg(QLatin1String(name)), "[1]");
        m_settings.emplace(m_files->preferences, *m_timeline);
        compareDefaults();
        m_files->write(u"preferences/reminderDays.json"_s, "37.0");
        PreferencesStore whole = newStore();
        QCOMPARE(SettingsViewModel(whole, *m_timeline).reminderDays(), std::int64_t(37));
        m_files->write(u"preferences/reminderDays.json"_s, "37.5");
        PreferencesStore broken = newStore();
        QCOMPARE(SettingsViewModel(broken, *m_timeline).reminderDays(), std::int64_t(30));
    }

    void eachChangeIsAnnouncedOnce()
    {
        setEverything();
        QCOMPARE(m_timeline->take(), announcements());
    }

    void aResetWritesEveryKey()
    {
        m_settings->resetToDefaults();
        QCOMPARE(m_timeline->take(), announcements());
        QCOMPARE(storedValues(), QList<QByteArray>({"true", "30", "365", "\"\xE2\x82\xAC\"", "false", "false"}));
        setEverything();
        m_settings->resetToDefaults();
        compareDefaults();
    }

    void aResetLeavesOtherKeysAlone()
    {
        m_files->write(test::registerFile, "[]");
        m_files->write(u"preferences/iconSetVersion.json"_s, "3");
        m_settings->resetToDefaults();
        QCOMPARE(m_files->names(u"preferences"_s).size(), 8);
        QCOMPARE(m_files->content(test::registerFile), QByteArray("[]"));
        QCOMPARE(m_files->content(u"preferences/iconSetVersion.json"_s), QByteArray("3"));
    }

    void aFailedWriteIsLoggedAndIsMadeUpFor()
    {
        {
            const test::FileSizeLimit limit(1);
            m_settings->setDarkMode(true);
        }
        QCOMPARE(m_timeline->take().first(), QString(u"Error saving settings: "_s + IoError::fromErrno(EFBIG).reason));
        QCOMPARE(m_settings->darkMode(), true);
        QCOMPARE(m_files->names(u"preferences"_s), QStringList());
        QCOMPARE(m_files->preferences.retry(), QStringList{u"darkMode"_s});
        QCOMPARE(m_files->content(u"preferences/darkMode.json"_s), QByteArray("true"));
    }

private:
    /// As a restart of the program makes it.
    [[nodiscard]] PreferencesStore newStore() { return {m_files->directories.preferences(), m_files->generations}; }

    void compareDefaults() const
    {
        QCOMPARE(m_settings->notificationsEnabled(), true);
        QCOMPARE(m_settings->reminderDays(), std::int64_t(30));
        QCOMPARE(m_settings->defaultServiceInterval(), std::int64_t(365));
        QCOMPARE(m_settings->currencySymbol(), QString(QChar(0x20AC)));
        QCOMPARE(m_settings->darkMode(), false);
        QCOMPARE(m_settings->checkForUpdatesOnLaunch(), false);
    }

    void setEverything()
    {
        m_settings->setNotificationsEnabled(false);
        m_settings->setReminderDays(37);
        m_settings->setDefaultServiceInterval(730);
        m_settings->setCurrencySymbol(u"CHF \"è\""_s);
        m_settings->setDarkMode(true);
        m_settings->setCheckForUpdatesOnLaunch(true);
    }

    static QStringList announcements()
    {
        QStringList expected;
        for (const char* name : keys)
            expected << u"<%1Changed>"_s.arg(QLatin1String(name)) << u"<changed>"_s;
        return expected;
    }

    QList<QByteArray> storedValues() const
    {
        QList<QByteArray> values;
        for (const char* name : keys)
            values.append(m_files->content(u"preferences/%1.json"_s.arg(QLatin1String(name))));
        return values;
    }

    std::optional<test::TemporaryRegister> m_files;
    std::optional<test::Timeline> m_timeline;
    std::optional<SettingsViewModel> m_settings;
};

ABISSORA_TEST(tst_SettingsViewModel);
#include "tst_SettingsViewModel.moc"
