// SPDX-License-Identifier: MIT
#include "FileSizeLimit.h"
#include "Literals.h"
#include "PreferencesTest.h"

#include <QFileInfo>
#include <cerrno>
#include <limits>

using namespace abissora;

class tst_PreferencesStore : public test::PreferencesTest
{
    Q_OBJECT

private Q_SLOTS:
    void dataIsKeptAsItIs()
    {
        const QByteArray bytes("\xEF\xBB\xBFnot json\0 \xFF\r\n", 16);
        VERIFY_OK(m_store->setData(key, bytes));
        QCOMPARE(m_store->data(key).value(), std::optional(bytes));
        QCOMPARE(content(m_store->path(key)), bytes);
        VERIFY_OK(m_store->setData(key, QByteArray()));
        QCOMPARE(m_store->data(key).value(), std::optional(QByteArray()));
    }

    void anAbsentKeyIsNoError()
    {
        QCOMPARE(m_store->data(key).value(), std::nullopt);
        QVERIFY(!m_store->boolean(key));
        QVERIFY(!m_store->integer(key));
        QVERIFY(!m_store->text(key));
        QVERIFY(!QFileInfo::exists(preferences())); // reading creates nothing
        VERIFY_OK(m_store->setData(key, "x"));
        QCOMPARE(m_store->data(u"other"_s).value(), std::nullopt);
    }

    void unreadableIsNotAbsent()
    {
        QVERIFY(QDir().mkpath(m_store->path(key)));
        VERIFY_FAILED(m_store->data(key), EISDIR);
        VERIFY_FAILED(m_store->setData(key, "x"), EISDIR);
        QVERIFY(!m_store->boolean(key));
    }

    void aFileInPlaceOfTheFolder()
    {
        write(preferences(), "x");
        VERIFY_FAILED(m_store->data(key), ENOTDIR);
        VERIFY_FAILED(m_store->setData(key, "x"), EEXIST);
        VERIFY_FAILED(m_store->setBoolean(key, true), EEXIST);
    }

    void dataIsReadAnewAndScalarsAreKept()
    {
        VERIFY_OK(m_store->setBoolean(key, true));
        write(m_store->path(key), "false");
        QCOMPARE(m_store->data(key).value(), std::optional<QByteArray>("false"));
        QCOMPARE(m_store->boolean(key), std::optional(true));
        QVERIFY(QFile::remove(m_store->path(key)));
        QCOMPARE(m_store->boolean(key), std::optional(true));

        QVERIFY(!m_store->integer(u"number"_s));
        write(m_store->path(u"number"_s), "5");
        QVERIFY(!m_store->integer(u"number"_s));
        VERIFY_OK(m_store->setData(u"number"_s, "6")); // the owner of data writes past what was kept
        QCOMPARE(m_store->integer(u"number"_s), std::optional(std::int64_t(6)));
    }

    void scalarsComeBack()
    {
        VERIFY_OK(m_store->setBoolean(u"darkMode"_s, true));
        QCOMPARE(content(m_store->path(u"darkMode"_s)), QByteArray("true"));
        QCOMPARE(m_store->boolean(u"darkMode"_s), std::optional(true));
        for (const std::int64_t number : {std::int64_t{0}, std::int64_t{-5}, std::numeric_limits<std::int64_t>::max(),
                                          std::numeric_limits<std::int64_t>::min()}) {
            VERIFY_OK(m_store->setInteger(u"number"_s, number));
            QCOMPARE(m_store->integer(u"number"_s), std::optional(number));
        }
        const QStringList texts{QString(), u"€"_s, u"a\"\\\n\t b"_s, u"🤿"_s, u"a"_s + QChar::Null + u"b"_s};
        for (const QString& text : texts) {
            VERIFY_OK(m_store->setText(u"text"_s, text));
            QCOMPARE(m_store->text(u"text"_s), std::optional(text));
        }
        VERIFY_OK(m_store->setText(u"text"_s, u"€"_s));
        QCOMPARE(content(m_store->path(u"text"_s)), QByteArray("\"€\""));
    }

    void loneSurrogatesDoNotBreakTheFile()
    {
        VERIFY_OK(m_store->setText(key, QString(QChar(0xD800)) + "a"_L1));
        QVERIFY(m_store->text(key)->endsWith(u'a'));
    }

    void readsIntegers_data()
    {
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<bool>("isInteger");
        QTest::addColumn<qint64>("value");
        const auto integer = [](const char* stored, qint64 value) {
            QTest::newRow(stored) << QByteArray(stored) << true << value;
        };
        const auto nothing = [](const char* stored) {
            QTest::newRow(stored) << QByteArray(stored) << false << qint64{0};
        };
        integer("57", 57);
        integer("57.0", 57);
        QTest::newRow("white space around") << QByteArray(" 57\n") << true << qint64{57};
        integer("-0", 0);
        integer("-0.0", 0);
        integer("5.7e1", 57);
        integer("1e18", 1'000'000'000'000'000'000);
        integer("9223372036854775807", std::numeric_limits<qint64>::max());
        integer("-9223372036854775808", std::numeric_limits<qint64>::min());
        nothing("57.5");
        nothing("\"57\"");
        nothing("9223372036854775808");
        nothing("18446744073709551615");
        nothing("18446744073709551616");
        nothing("-9223372036854775809");
        nothing("9223372036854775808.0");
        nothing("1e19");
        nothing("1e400");
        nothing("true");
        nothing("null");
        nothing("[57]");
        nothing("{}");
        nothing("57 58");
        nothing("0x39");
        nothing("057");
        nothing("+57");
        nothing("NaN");
        nothing("");
        QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBF"
                                                       "57")
                                         << false << qint64{0};
        QTest::newRow("trailing NUL") << QByteArray("57\0", 3) << false << qint64{0};
    }

    void readsIntegers()
    {
        QFETCH(QByteArray, stored);
        QFETCH(bool, isInteger);
        QFETCH(qint64, value);
        VERIFY_OK(m_store->setData(key, stored));
        const auto read = m_store->integer(key);
        QCOMPARE(read.has_value(), isInteger);
        QCOMPARE(qint64{read.value_or(0)}, value);
    }

    void otherTypesReadAsNothing_data()
    {
        QTest::addColumn<QByteArray>("stored");
        QTest::newRow("null") << QByteArray("null");
        QTest::newRow("array") << QByteArray("[true]");
        QTest::newRow("truncated text") << QByteArray("\"abc");
        QTest::newRow("upper case") << QByteArray("True");
        QTest::newRow("number") << QByteArray("1");
        QTest::newRow("invalid UTF-8") << QByteArray("\"\xC3\x28\"");
        QTest::newRow("byte order mark, true") << QByteArray("\xEF\xBB\xBFtrue");
        QTest::newRow("byte order mark, text") << QByteArray("\xEF\xBB\xBF\"a\"");
        QTest::newRow("trailing NUL") << QByteArray("true\0", 5);
        QTest::newRow("nested") << QByteArray(100'000, '[');
        QTest::newRow("nested and closed") << QByteArray(100'000, '[') + QByteArray(100'000, ']');
    }

    void otherTypesReadAsNothing()
    {
        QFETCH(QByteArray, stored);
        VERIFY_OK(m_store->setData(key, stored));
        QVERIFY(!m_store->boolean(key));
        QVERIFY(!m_store->text(key));
    }

    void keysArePlainNames_data()
    {
        QTest::addColumn<QString>("bad");
        QTest::newRow("empty") << QString();
        QTest::newRow("parent") << u".."_s;
        QTest::newRow("path") << u"../outside"_s;
        QTest::newRow("slash") << u"a/b"_s;
        QTest::newRow("backslash") << u"a\\b"_s;
        QTest::newRow("dot") << u"a.b"_s;
        QTest::newRow("hyphen") << u"a-b"_s;
        QTest::newRow("space") << u"a b"_s;
        QTest::newRow("accent") << u"à"_s;
        QTest::newRow("NUL") << u"a"_s + QChar::Null;
    }

    void keysArePlainNames()
    {
        QFETCH(QString, bad);
        VERIFY_FAILED(m_store->data(bad), EINVAL);
        VERIFY_FAILED(m_store->setData(bad, "x"), EINVAL);
        VERIFY_FAILED(m_store->setBoolean(bad, true), EINVAL);
        VERIFY_FAILED(m_store->preserveUnreadable(bad), EINVAL);
        QVERIFY(!m_store->boolean(bad));
        QVERIFY(!m_store->integer(bad));
        QVERIFY(!m_store->text(bad));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
    }

    void aFailedWriteKeepsTheOldValue()
    {
        VERIFY_OK(m_store->setData(key, "old"));
        IoResult<void> result;
        {
            const test::FileSizeLimit limit(50'000);
            result = m_store->setData(key, QByteArray(100'000, 'x'));
        }
        VERIFY_FAILED(result, EFBIG);
        QCOMPARE(m_store->data(key).value(), std::optional(QByteArray("old")));
        QCOMPARE(namesIn(preferences()).size(), 1);
    }

    void aFailedWriteIsPendingUntilARetrySucceeds()
    {
        int told = 0;
        m_store->whenPending([&told] { ++told; });
        VERIFY_OK(m_store->setData(key, "old"));
        const QByteArray large(100'000, 'x');
        QStringList written;
        {
            const test::FileSizeLimit limit(50'000);
            static_cast<void>(m_store->setData(key, large));
            static_cast<void>(m_store->setBoolean(u"darkMode"_s, true));
            written = m_store->retry();
        }
        QCOMPARE(told, 1);
        QCOMPARE(written, QStringList());
        QCOMPARE(m_store->pending().keys(), QStringList{key});
        QCOMPARE(m_store->retry(), QStringList{key});
        QVERIFY(m_store->pending().isEmpty());
        QCOMPARE(m_store->data(key).value(), std::optional(large));
    }

    void aLaterWriteTakesThePlaceOfAPendingOne()
    {
        write(preferences(), "in the way");
        VERIFY_FAILED(m_store->setData(key, "first"), EEXIST);
        VERIFY_FAILED(m_store->setData(key, "second"), EEXIST);
        QVERIFY(QFile::remove(preferences()));
        VERIFY_OK(m_store->setData(key, "third"));
        QCOMPARE(m_store->retry(), QStringList());
        QCOMPARE(m_store->data(key).value(), std::optional(QByteArray("third")));
    }

    void whatHasGivenUpWritesNothing()
    {
        int told = 0;
        m_store->whenPending([&told] { ++told; });
        write(preferences(), "in the way");
        VERIFY_FAILED(m_store->setData(key, "first"), EEXIST);
        QVERIFY(QFile::remove(preferences()));
        m_store->giveUp();
        QCOMPARE(m_store->retry(), QStringList());
        VERIFY_FAILED(m_store->setData(key, "second"), ECANCELED);
        VERIFY_FAILED(m_store->setBoolean(u"darkMode"_s, true), ECANCELED);
        QVERIFY(m_store->pending().isEmpty());
        QCOMPARE(told, 1);
        QVERIFY(!QFileInfo::exists(preferences()));
    }

    void aPendingScalarStands()
    {
        write(preferences(), "in the way");
        VERIFY_FAILED(m_store->setInteger(u"reminderDays"_s, 7), EEXIST);
        QCOMPARE(m_store->integer(u"reminderDays"_s), std::optional(std::int64_t(7)));
    }

    void theKeeperIsTold()
    {
        const QString other = u"equipmentTypes"_s;
        VERIFY_OK(m_store->setData(key, "1"));
        VERIFY_OK(m_store->setData(key, "2", Occasion::deletedItem));
        write(m_store->path(key), "of another program");
        VERIFY_OK(m_store->setData(key, "3"));
        write(m_store->path(other), "was never read");
        VERIFY_OK(m_store->setData(other, "4"));
        write(m_store->path(u"darkMode"_s), "false");
        VERIFY_OK(m_store->setBoolean(u"darkMode"_s, true)); // was read first
        m_store->keepUnknownMembers(key);
        VERIFY_OK(m_store->setData(key, "5"));
        VERIFY_OK(m_store->setData(key, "6"));
        QCOMPARE(m_keeper.told, (QList<Told>{{key, Occasion::change},
                                             {key, Occasion::deletedItem},
                                             {key, Occasion::foreignBytes},
                                             {other, Occasion::foreignBytes},
                                             {u"darkMode"_s, Occasion::change},
                                             {key, Occasion::unknownMembers},
                                             {key, Occasion::change}}));
    }

    void theSameBytesInAnotherFileAreForeignToo()
    {
        VERIFY_OK(m_store->setData(key, "1"));
        QVERIFY(QFile::remove(m_store->path(key)));
        write(m_store->path(key) + u"2"_s, "in between");
        write(m_store->path(key), "1");
        VERIFY_OK(m_store->setData(key, "2"));
        QCOMPARE(m_keeper.told.last().occasion, Occasion::foreignBytes);
    }

    void whatTheKeeperForbidsIsPendingWithItsOccasion()
    {
        VERIFY_OK(m_store->setData(key, "1"));
        m_keeper.forbids = true;
        VERIFY_FAILED(m_store->setData(key, "2", Occasion::deletedItem), EROFS);
        VERIFY_FAILED(m_store->setData(key, "3"), EROFS);
        QCOMPARE(m_store->data(key).value(), std::optional(QByteArray("1")));
        m_keeper.forbids = false;
        m_keeper.told.clear();
        QCOMPARE(m_store->retry(), QStringList{key});
        QCOMPARE(m_keeper.told, (QList<Told>{{key, Occasion::deletedItem}}));
        QCOMPARE(m_store->data(key).value(), std::optional(QByteArray("3")));
    }

    void unreadableDataIsKeptBeforeTheFirstWrite()
    {
        write(m_folder->filePath(u"x"_s), "");
        m_keeper.forbids = true;
        VERIFY_FAILED(m_store->preserveUnreadable(key), EROFS);
        m_keeper.forbids = false;
        VERIFY_OK(m_store->setData(key, "1"));
        VERIFY_OK(m_store->setData(key, "2"));
        QCOMPARE(m_keeper.told,
                 (QList<Told>{{key, Occasion::unreadable}, {key, Occasion::unreadable}, {key, Occasion::change}}));
    }

private:
    using Told = test::RecordingKeeper::Told;
};

ABISSORA_TEST(tst_PreferencesStore);
#include "tst_PreferencesStore.moc"
