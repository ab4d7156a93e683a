// SPDX-License-Identifier: MIT
#include "Literals.h"
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
        const QVariant version = package.value(u"CFBundleShortVersionString"_s);
        const QVariant build = package.value(u"CFBundleVersion"_s);
        QCOMPARE(version.typeId(), int(QMetaType::QString));
        QCOMPARE(build.typeId(), int(QMetaType::QString));
        QVERIFY(QRegularExpression(u"^\\d+\\.\\d+\\.\\d+$"_s).match(version.toString()).hasMatch());
        QVERIFY(!build.toString().isEmpty());
    }

    void otherKeysAreAbsent()
    {
        const BuiltInPackageInformation package;
        QVERIFY(!package.value(u"CFBundleName"_s).isValid());
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
