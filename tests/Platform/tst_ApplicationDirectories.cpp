// SPDX-License-Identifier: MIT
#include "ApplicationDirectories.h"
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
        const ApplicationDirectories directories(QStringLiteral("/data/register"));
        QCOMPARE(directories.root(), QStringLiteral("/data/register"));
        QCOMPARE(directories.preferences(), QStringLiteral("/data/register/preferences"));
        QCOMPARE(directories.maintenanceDocuments(), QStringLiteral("/data/register/MaintenanceDocuments"));
        QCOMPARE(directories.backups(), QStringLiteral("/data/register/backups"));
    }

    void rootIsMadeAbsoluteAndClean()
    {
        QCOMPARE(ApplicationDirectories(QStringLiteral("some/../folder/")).root(),
                 QDir::current().absoluteFilePath(QStringLiteral("folder")));
        QCOMPARE(ApplicationDirectories(QStringLiteral("/data//register/")).root(), QStringLiteral("/data/register"));
    }

    void rootStaysWhenTheWorkingFolderChanges()
    {
        const QTemporaryDir elsewhere;
        const QString before = QDir::currentPath();
        const ApplicationDirectories directories(QStringLiteral("folder"));
        QVERIFY(QDir::setCurrent(elsewhere.path()));
        QCOMPARE(directories.root(), before + QLatin1String("/folder"));
        QVERIFY(QDir::setCurrent(before));
    }

    void standardFolderFollowsThePlatform()
    {
        const QTemporaryDir data;
        const QTemporaryDir config;
        qputenv("XDG_DATA_HOME", data.path().toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", config.path().toLocal8Bit());
        const auto directories = ApplicationDirectories::standard();
        QCOMPARE(directories.root(), data.path() + QLatin1String("/abissora"));
        QCOMPARE(directories.windowStateFile(), config.path() + QLatin1String("/abissora/windowstate.ini"));
        qunsetenv("XDG_DATA_HOME");
        qunsetenv("XDG_CONFIG_HOME");
    }

    void standardFolderIgnoresTheApplicationsName()
    {
        const auto root = ApplicationDirectories::standard().root();
        const QString name = QCoreApplication::applicationName();
        QCoreApplication::setApplicationName(QStringLiteral("other"));
        QCOMPARE(ApplicationDirectories::standard().root(), root);
        QCoreApplication::setApplicationName(name);
    }

    void aChosenFolderKeepsItsWindowStateToo()
    {
        QCOMPARE(ApplicationDirectories(QStringLiteral("/data/register"), true).windowStateFile(),
                 QStringLiteral("/data/register/windowstate.ini"));
    }
};

ABISSORA_TEST(tst_ApplicationDirectories);
#include "tst_ApplicationDirectories.moc"
