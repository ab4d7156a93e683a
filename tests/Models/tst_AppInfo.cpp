// SPDX-License-Identifier: MIT
#include "AppInfo.h"
#include "Builders.h"
#include "TestRunner.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace abissora;
using test::at;

namespace {

const QString missing = QStringLiteral("—");
const QString versionKey = QStringLiteral("CFBundleShortVersionString");
const QString buildKey = QStringLiteral("CFBundleVersion");

} // namespace

class tst_AppInfo : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        test::TestCase::init();
        m_package = {};
        m_clock = {};
    }

    void versionAndBuild()
    {
        m_package.set(versionKey, QStringLiteral("1.2.0"));
        m_package.set(buildKey, QStringLiteral("42"));
        const AppInfo info = appInfo();
        QCOMPARE(info.version(), QStringLiteral("1.2.0"));
        QCOMPARE(info.build(), QStringLiteral("42"));
        m_package.set(versionKey, QStringLiteral(" 1.3 beta "));
        QCOMPARE(info.version(), QStringLiteral(" 1.3 beta ")); // afresh, as it stands
    }

    void whatIsNoTextIsMissing()
    {
        const AppInfo info = appInfo();
        QCOMPARE(info.version(), missing);
        QCOMPARE(info.build(), missing);
        m_package.set(versionKey, 1.2);
        m_package.set(buildKey, 42);
        QCOMPARE(info.version(), missing);
        QCOMPARE(info.build(), missing);
        m_package.set(buildKey, QString());
        QCOMPARE(info.build(), QString());
    }

    void theYearIsTheClocks()
    {
        const AppInfo info = appInfo();
        m_clock.set(at("2026-12-31T22:59:59Z"));
        QCOMPARE(info.year(), QStringLiteral("2026"));
        m_clock.set(at("2026-12-31T23:00:00Z"));
        QCOMPARE(info.year(), QStringLiteral("2027"));
        m_clock.set(at("0987-06-01T00:00:00Z"));
        QCOMPARE(info.year(), QStringLiteral("0987"));
    }

    void theBuildDateIsTheExecutables()
    {
        const AppInfo info = appInfo();
        QFile file(m_folder.filePath(QStringLiteral("program")));
        m_package.setExecutablePath(file.fileName());
        QCOMPARE(info.buildDate(), missing); // no such file
        QVERIFY(file.open(QIODevice::WriteOnly));
        setModified(file, "2025-03-05T08:07:59Z");
        QCOMPARE(info.buildDate(), QStringLiteral("05/03/2025 09:07"));
        setModified(file, "2025-07-03T16:45:00Z");
        QCOMPARE(info.buildDate(), QStringLiteral("03/07/2025 18:45"));
        m_package.setExecutablePath(std::nullopt);
        QCOMPARE(info.buildDate(), missing);
    }

private:
    AppInfo appInfo() const { return {m_package, m_clock, Calendar(QTimeZone("Europe/Rome"))}; }

    static void setModified(QFile& file, const char* time)
    {
        const auto modified = QDateTime::fromString(QLatin1String(time), Qt::ISODate);
        QVERIFY(file.setFileTime(modified, QFileDevice::FileModificationTime));
    }

    QTemporaryDir m_folder;
    test::FakePackageInformation m_package;
    test::FixedClock m_clock;
};

ABISSORA_TEST(tst_AppInfo);
#include "tst_AppInfo.moc"
