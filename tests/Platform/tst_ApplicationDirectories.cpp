// SPDX-License-Identifier: MIT
#include "ApplicationDirectories.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace abissora;

class tst_ApplicationDirectories : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everythingLiesBelowTheRoot()
    {
        const ApplicationDirectories directories(u"/data/register"_s);
        QCOMPARE(directories.root(), u"/data/register"_s);
        QCOMPARE(directories.preferences(), u"/data/register/preferences"_s);
        QCOMPARE(directories.maintenanceDocuments(), u"/data/register/MaintenanceDocuments"_s);
        QCOMPARE(directories.backups(), u"/data/register/backups"_s);
    }

    void rootIsMadeAbsoluteAndClean()
    {
        QCOMPARE(ApplicationDirectories(u"some/../folder/"_s).root(), QDir::current().absoluteFilePath(u"folder"_s));
        QCOMPARE(ApplicationDirectories(u"/data//register/"_s).root(), u"/data/register"_s);
    }

    void rootStaysWhenTheWorkingFolderChanges()
    {
        const QTemporaryDir elsewhere;
        const QString before = QDir::currentPath();
        const ApplicationDirectories directories(u"folder"_s);
        QVERIFY(QDir::setCurrent(elsewhere.path()));
        QCOMPARE(directories.root(), before + "/folder"_L1);
        QVERIFY(QDir::setCurrent(before));
    }

    void standardFolderFollowsThePlatform()
    {
        const QTemporaryDir data;
        const QTemporaryDir config;
        qputenv("XDG_DATA_HOME", data.path().toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", config.path().toLocal8Bit());
        const auto directories = ApplicationDirectories::standard();
        QCOMPARE(directories.root(), data.path() + "/abissora"_L1);
        QCOMPARE(directories.windowStateFile(), config.path() + "/abissora/windowstate.ini"_L1);
        qunsetenv("XDG_DATA_HOME");
        qunsetenv("XDG_CONFIG_HOME");
    }

    void standardFolderIgnoresTheApplicationsName()
    {
        const auto root = ApplicationDirectories::standard().root();
        const QString name = QCoreApplication::applicationName();
        QCoreApplication::setApplicationName(u"other"_s);
        QCOMPARE(ApplicationDirectories::standard().root(), root);
        QCoreApplication::setApplicationName(name);
    }

    void aChosenFolderKeepsItsWindowStateToo()
    {
        QCOMPARE(ApplicationDirectories(u"/data/register"_s, true).windowStateFile(),
                 u"/data/register/windowstate.ini"_s);
    }
};

ABISSORA_TEST(tst_ApplicationDirectories);
#include "tst_ApplicationDirectories.moc"
