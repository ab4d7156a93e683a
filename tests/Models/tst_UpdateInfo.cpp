// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "RecordJson.h"
#include "TestRunner.h"

#include <QSet>
#include <QTest>
#include <limits>

using namespace abissora;

namespace {

const UpdateInfo sample{u"1.3.0"_s, 57, QUrl(u"https://abissora.example/scarica?v=1.3.0"_s),
                        u"Novità: «ricerca» 🤿\nRiga due"_s};

} // namespace

class tst_UpdateInfo : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theIdIsVersionAndBuild()
    {
        QCOMPARE(sample.id(), u"1.3.0-57"_s);
        UpdateInfo other = sample;
        other.version.clear();
        other.build = std::numeric_limits<std::int64_t>::min();
        QCOMPARE(other.id(), u"--9223372036854775808"_s);
        QCOMPARE(sample.versionAndBuild(), u"1.3.0 (build 57)"_s);
    }

    void valuesCompareByEveryMember()
    {
        QList<UpdateInfo> different{sample, sample, sample, sample, sample};
        different[1].version = u"1.3"_s;
        different[2].build = 58;
        different[3].downloadURL = QUrl(u"https://abissora.example/"_s);
        different[4].releaseNotes.reset();
        QCOMPARE(QSet<UpdateInfo>(different.begin(), different.end()).size(), 5);
        different.append(sample);
        QCOMPARE(QSet<UpdateInfo>(different.begin(), different.end()).size(), 5);
        QCOMPARE(qHash(different.last(), 7), qHash(sample, 7));
    }

    void theTextFormHasTheManifestsMembers()
    {
        QCOMPARE(encode(sample), QByteArray(R"({"version":"1.3.0","build":57,)"
                                            R"("downloadURL":"https://abissora.example/scarica?v=1.3.0",)"
                                            R"("releaseNotes":"Novità: «ricerca» 🤿\nRiga due"})"));
        UpdateInfo bare = sample;
        bare.releaseNotes.reset();
        QVERIFY(!encode(bare).contains("releaseNotes"));
    }

    void theTextFormGivesTheSameValueAgain()
    {
        UpdateInfo unusual = sample;
        unusual.downloadURL = QUrl(u"https://è.example/perché?a=%20b&c=ü#è"_s);
        unusual.build = std::numeric_limits<std::int64_t>::min();
        unusual.releaseNotes = QString();
        UpdateInfo bare = sample;
        bare.releaseNotes.reset();
        for (const UpdateInfo& info : {sample, unusual, bare})
            QCOMPARE(decodeUpdateInfo(encode(info)).value(), info);
    }

    void textFormsThatAreNone()
    {
        QVERIFY(!decodeUpdateInfo("{}"));
        const auto decoded = decodeUpdateInfo(R"({"version":"1","build":1,"downloadURL":"a b"})");
        QCOMPARE(decoded.error().description(), u".downloadURL: expected an address"_s);
    }
};

ABISSORA_TEST(tst_UpdateInfo);
#include "tst_UpdateInfo.moc"
