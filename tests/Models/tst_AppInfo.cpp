// SPDX-License-Identifier: MIT
#include "AppInfo.h"
#include "Builders.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace abissora;
using test::at;

namespace {

const QString missing = u"—"_s;
const QString versionKey = u"CFBundleShortVersionString"_s;
const QString buildKey = u"CFBundleVersion"_s;

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
        m_package.set(versionKey, u"1.2.0"_s);
        m_package.set(buildKey, u"42"_s);
        const AppInfo info = appInfo();
        QCOMPARE(info.version(), u"1.2.0"_s);
        QCOMPARE(info.build(), u"42"_s);
        m_package.set(versionKey, u" 1.3 beta "_s);
        QCOMPARE(info.version(), u" 1.3 beta "_s); // afresh, as it stands
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
        QCOMPARE(info.year(), u"2026"_s);
        m_clock.set(at("2026-12-31T23:00:00Z"));
        QCOMPARE(info.year(), u"2027"_s);
        m_clock.set(at("0987-06-01T00:00:00Z"));
        QCOMPARE(info.year(), u"0987"_s);
    }

    void theBuildDateIsTheExecutables()
    {
        const AppInfo info = appInfo();
        QFile file(m_folder.filePath(u"program"_s));
        m_package.setExecutablePath(file.fileName());
        QCOMPARE(info.buildDate(), missing); // no such file
        QVERIFY(file.open(QIODevice::WriteOnly));
        setModified(file, "2025-03-05T08:07:59Z");
        QCOMPARE(info.buildDate(), u"05/03/2025 09:07"_s);
        setModified(file, "2025-07-03T16:45:00Z");
        QCOMPARE(info.buildDate(), u"03/07/2025 18:45"_s);
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
