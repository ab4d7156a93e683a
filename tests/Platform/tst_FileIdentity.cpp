// SPDX-License-Identifier: MIT
#include "FileIdentity.h"

#include "Literals.h"
#include "TestRunner.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace abissora;

class tst_FileIdentity : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsNotThereHasNone() { QVERIFY(!FileIdentity::of(u"/no/such/file"_s)); }

    void anUntouchedFileIsTheSame()
    {
        QVERIFY(write("one"));
        const auto identity = FileIdentity::of(m_path);
        QVERIFY(identity);
        QCOMPARE(identity->size, 3);
        QCOMPARE(FileIdentity::of(m_path), identity);
        QVERIFY(QFile::rename(m_path, m_path + u"2"_s));
        QCOMPARE(FileIdentity::of(m_path + u"2"_s), identity);
        QVERIFY(QFile::rename(m_path + u"2"_s, m_path));
    }

    void anotherFileOfTheNameDiffers()
    {
        QVERIFY(write("one"));
        const auto identity = FileIdentity::of(m_path);
        QVERIFY(QFile::rename(m_path, m_path + u"2"_s));
        QVERIFY(write("one"));
        QVERIFY(FileIdentity::of(m_path) != identity);
    }

    void aFileThatGrewDiffers()
    {
        QVERIFY(write("one"));
        const auto identity = FileIdentity::of(m_path);
        QVERIFY(write("one and more"));
        QVERIFY(FileIdentity::of(m_path) != identity);
    }

    void aFileOfAnotherTimeDiffers()
    {
        QVERIFY(write("one"));
        const auto identity = FileIdentity::of(m_path);
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(-60), QFileDevice::FileModificationTime));
        file.close();
        QVERIFY(FileIdentity::of(m_path) != identity);
    }

private:
    [[nodiscard]] bool write(const QByteArray& bytes) const
    {
        QFile file(m_path);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    }

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(u"file"_s);
};

ABISSORA_TEST(tst_FileIdentity);
#include "tst_FileIdentity.moc"
