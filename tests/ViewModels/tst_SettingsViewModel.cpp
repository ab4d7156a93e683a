// SPDX-License-Identifier: MIT
#include "FileSizeLimit.h"
#include "SettingsViewModel.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"
#include "Timeline.h"

#include <QTest>
#include <limits>

using namespace abissora;

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
        QCOMPARE(m_files->names(QStringLiteral(".")), QStringList());
        QCOMPARE(m_timeline->take(), QStringList());
    }

    void everyValueIsStoredAtOnce()
    {
        setEverything();
        QCOMPARE(m_settings->notificationsEnabled(), false);
        QCOMPARE(m_settings->reminderDays(), std::int64_t(37));
        QCOMPARE(m_settings->defaultServiceInterval(), std::int64_t(730));
        QCOMPARE(m_settings->currencySymbol(), QStringLiteral("CHF \"è\""));
        QCOMPARE(m_settings->darkMode(), true);
        QCOMPARE(m_settings->checkForUpdatesOnLaunch(), true);
        QCOMPARE(storedValues(), QList<QByteArray>({"false", "37", "730", "\"CHF \\\"\xC3\xA8\\\"\"", "true", "true"}));

        SettingsViewModel afterARestart(m_files->preferences, m_files->console);
        QCOMPARE(afterARestart.notificationsEnabled(), false);
        QCOMPARE(afterARestart.reminderDays(), std::int64_t(37));
        QCOMPARE(afterARestart.currencySymbol(), QStringLiteral("CHF \"è\""));
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

    void readsGoToTheStore()
    {
        m_files->write(QStringLiteral("preferences/darkMode.json"), "true");
        QCOMPARE(m_settings->darkMode(), true);
        m_files->write(QStringLiteral("preferences/darkMode.json"), "false");
        QCOMPARE(m_settings->darkMode(), false);
    }

    void valuesOfTheWrongTypeAreAbsent()
    {
        for (const char* name : {"notificationsEnabled", "reminderDays", "defaultServiceInterval", "currencySymbol",
                                 "darkMode", "checkForUpdatesOnLaunch"})
            m_files->write(QStringLiteral("preferences/%1.json").arg(QLatin1String(name)), "[1]");
        compareDefaults();
        m_files->write(QStringLiteral("preferences/reminderDays.json"), "37.0");
        QCOMPARE(m_settings->reminderDays(), std::int64_t(37));
        m_files->write(QStringLiteral("preferences/reminderDays.json"), "37.5");
        QCOMPARE(m_settings->reminderDays(), std::int64_t(30));
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
        m_files->write(QStringLiteral("preferences/iconSetVersion.json"), "3");
        m_settings->resetToDefaults();
        QCOMPARE(m_files->names(QStringLiteral("preferences")).size(), 8);
        QCOMPARE(m_files->content(test::registerFile), QByteArray("[]"));
        QCOMPARE(m_files->content(QStringLiteral("preferences/iconSetVersion.json")), QByteArray("3"));
    }

    void aFailedWriteIsLogged()
    {
        {
            const test::FileSizeLimit limit(1);
            m_settings->setDarkMode(true);
        }
        QCOMPARE(m_timeline->take().first(),
                 QString(QStringLiteral("Error saving settings: ") + IoError::fromErrno(EFBIG).reason));
        QCOMPARE(m_settings->darkMode(), false);
    }

private:
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
        m_settings->setCurrencySymbol(QStringLiteral("CHF \"è\""));
        m_settings->setDarkMode(true);
        m_settings->setCheckForUpdatesOnLaunch(true);
    }

    static QStringList announcements()
    {
        const QString changed = QStringLiteral("<changed>");
        return {changed, QStringLiteral("<notificationsEnabledChanged>"),
                changed, QStringLiteral("<reminderDaysChanged>"),
                changed, QStringLiteral("<defaultServiceIntervalChanged>"),
                changed, QStringLiteral("<currencySymbolChanged>"),
                changed, QStringLiteral("<darkModeChanged>"),
                changed, QStringLiteral("<checkForUpdatesOnLaunchChanged>")};
    }

    QList<QByteArray> storedValues() const
    {
        QList<QByteArray> values;
        for (const char* name : {"notificationsEnabled", "reminderDays", "defaultServiceInterval", "currencySymbol",
                                 "darkMode", "checkForUpdatesOnLaunch"})
            values.append(m_files->content(QStringLiteral("preferences/%1.json").arg(QLatin1String(name))));
        return values;
    }

    std::optional<test::TemporaryRegister> m_files;
    std::optional<test::Timeline> m_timeline;
    std::optional<SettingsViewModel> m_settings;
};

ABISSORA_TEST(tst_SettingsViewModel);
#include "tst_SettingsViewModel.moc"
