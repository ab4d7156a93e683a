// SPDX-License-Identifier: MIT
#include "AtomicFile.h"
#include "Builders.h"
#include "Literals.h"
#include "RegisterAhead.h"
#include "TestRunner.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace abissora;

class tst_RegisterAhead : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() { store({test::equipment(1)}); }

    void givesWhatReadingGives()
    {
        const RegisterAhead ahead(m_path);
        const auto bytes = ahead.read(m_path);
        QCOMPARE(bytes.value(), AtomicFile::read(m_path).value());
        QCOMPARE(ahead.decoded(*bytes)->records, QList{test::equipment(1)});
    }

    void theFirstAnswerIsTheOneThatWasReady()
    {
        const RegisterAhead ahead(m_path);
        const RegisterAhead copy = ahead; // shares the work, NOLINT(performance-unnecessary-copy-initialization)
        const QByteArray bytes = ahead.read(m_path).value();
        QVERIFY(copy.read(m_path).value().isSharedWith(bytes));
        QVERIFY(copy.decoded(bytes));
        // What was given out is held no longer.
        QVERIFY(!ahead.read(m_path).value().isSharedWith(bytes));
        QCOMPARE(ahead.decoded(bytes)->records, QList{test::equipment(1)});
    }

    void findsTheListAmongTheFilesOfARegister()
    {
        const ApplicationDirectories directories(m_folder.path(), true);
        QVERIFY(QDir().mkpath(directories.preferences()));
        const QString path = directories.preferences() + u"/savedEquipment.json"_s;
        QVERIFY(AtomicFile::replace(path, encode(QList{test::equipment(4)}).value()));
        const RegisterAhead ahead(directories);
        ahead.wait();
        const QByteArray bytes = ahead.read(path).value();
        QVERIFY(ahead.read(path).value().isSharedWith(bytes));
        QCOMPARE(ahead.decoded(bytes)->records, QList{test::equipment(4)});
    }

    void aFileThatHasChangedIsReadAnew()
    {
        const RegisterAhead ahead(m_path);
        const QByteArray before = ahead.read(m_path).value();
        store({test::equipment(2)});
        const QByteArray after = ahead.read(m_path).value();
        QVERIFY(after != before);
        QCOMPARE(ahead.decoded(after)->records, QList{test::equipment(2)});
    }

    void otherBytesAreDecodedAnew()
    {
        const RegisterAhead ahead(m_path);
        QVERIFY(ahead.read(m_path));
        const QByteArray other = encode(QList{test::equipment(3)}).value();
        QCOMPARE(ahead.decoded(other)->records, QList{test::equipment(3)});
    }

    void otherFilesAreRead()
    {
        const RegisterAhead ahead(m_path);
        const QString other = m_folder.filePath(u"altro.json"_s);
        QVERIFY(AtomicFile::replace(other, "[]"));
        QCOMPARE(ahead.read(other).value(), QByteArray("[]"));
    }

    void errorsAreThoseOfReading()
    {
        QVERIFY(AtomicFile::replace(m_path, "{"));
        const RegisterAhead damaged(m_path);
        const QByteArray bytes = damaged.read(m_path).value();
        QCOMPARE(damaged.decoded(bytes).error(), readEquipment("{").error());
        QVERIFY(AtomicFile::remove(m_path));
        const RegisterAhead missing(m_path);
        QCOMPARE(missing.read(m_path).error(), AtomicFile::read(m_path).error());
        QCOMPARE(RegisterAhead().read(m_path).error(), AtomicFile::read(m_path).error());
    }

private:
    void store(const QList<Equipment>& items) { QVERIFY(AtomicFile::replace(m_path, encode(items).value())); }

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(u"savedEquipment.json"_s);
};

ABISSORA_TEST(tst_RegisterAhead);
#include "tst_RegisterAhead.moc"
