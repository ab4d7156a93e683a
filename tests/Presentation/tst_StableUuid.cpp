// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "TypeChoice.h"

#include "TestRunner.h"

#include <QTest>

using namespace abissora;

class tst_StableUuid : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void bytes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QString() << QByteArray("000000000000408080 8C000000000000");
        // 65
        QTest::newRow("one letter") << u"A"_s << QByteArray("41000000 0100 4080 808C 00000000 0000");
        // 70 + 97 + 114 + 111 = 392
        QTest::newRow("a word") << u"Faro"_s << QByteArray("88010000 0400 4080 808C 00000000 0000");
        // 195 + 160: two bytes in UTF-8, counted unsigned
        QTest::newRow("accent") << u"à"_s << QByteArray("63010000 0200 4080 808C 00000000 0000");
        // 240 + 159 + 164 + 191 = 754
        QTest::newRow("outside the first plane") << u"🤿"_s << QByteArray("F2020000 0400 4080 808C 00000000 0000");
        // 0x10000 times 0x61: the sum is 0x610000, the count reaches byte 6
        QTest::newRow("long") << QString(0x10000, u'a') << QByteArray("00006100 0000 4180 808C 00000000 0000");
        // 0x410000 bytes: a mark that is there already stays as it is
        QTest::newRow("longer") << QString(0x410000, u'a') << QByteArray("0000A118 0000 4180 808C 00000000 0000");
    }

    void bytes()
    {
        QFETCH(QString, text);
        QFETCH(QByteArray, bytes);
        QCOMPARE(stableUUID(text).toRfc4122().toHex(), QByteArray::fromHex(bytes).toHex());
        QCOMPARE(stableUUID(text), stableUUID(text));
    }

    void sumsBeyondThirtyTwoBits()
    {
        // 0x02000000 times 0xC3 + 0xBF is 0x304000000
        const QString text(0x02000000, QChar(0xFF));
        QCOMPARE(stableUUID(text).toRfc4122().toHex(), QByteArray("0000000400004084808c030000000000"));
    }
};

ABISSORA_TEST(tst_StableUuid);

#include "tst_StableUuid.moc"
