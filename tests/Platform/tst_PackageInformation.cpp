// SPDX-License-Identifier: MIT
#include "PackageInformation.h"
#include "TestRunner.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

using namespace abissora;

class tst_PackageInformation : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void versionAndBuildAreTexts()
    {
        const BuiltInPackageInformation package;
        const QVariant version = package.value(QStringLiteral("CFBundleShortVersionString"));
        const QVariant build = package.value(QStringLiteral("CFBundleVersion"));
        QCOMPARE(version.typeId(), int(QMetaType::QString));
        QCOMPARE(build.typeId(), int(QMetaType::QString));
        QVERIFY(QRegularExpression(QStringLiteral("^\\d+\\.\\d+\\.\\d+$")).match(version.toString()).hasMatch());
        QVERIFY(!build.toString().isEmpty());
    }

    void otherKeysAreAbsent()
    {
        const BuiltInPackageInformation package;
        QVERIFY(!package.value(QStringLiteral("CFBundleName")).isValid());
        QVERIFY(!package.value(QString()).isValid());
    }

    void executableIsTheRunningProgram()
    {
        const auto path = BuiltInPackageInformation().executablePath();
        QVERIFY(path.has_value());
        QCOMPARE(*path, QCoreApplication::applicationFilePath());
        QVERIFY(QFileInfo(*path).isExecutable());
    }
};

ABISSORA_TEST(tst_PackageInformation);
#include "tst_PackageInformation.moc"
