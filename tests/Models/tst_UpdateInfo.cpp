// SPDX-License-Identifier: MIT
#include "TestRunner.h"
#include "UpdateCheckError.h"
#include "UpdateJson.h"

#include <QSet>
#include <QTest>
#include <limits>

using namespace abissora;

namespace {

const UpdateInfo sample{QStringLiteral("1.3.0"), 57, QUrl(QStringLiteral("https://abissora.example/scarica?v=1.3.0")),
                        QStringLiteral("Novità: «ricerca» 🤿\nRiga due")};

} // namespace

class tst_UpdateInfo : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theIdIsVersionAndBuild()
    {
        QCOMPARE(sample.id(), QStringLiteral("1.3.0-57"));
        UpdateInfo other = sample;
        other.version.clear();
        other.build = std::numeric_limits<std::int64_t>::min();
        QCOMPARE(other.id(), QStringLiteral("--9223372036854775808"));
        QCOMPARE(sample.versionAndBuild(), QStringLiteral("1.3.0 (build 57)"));
    }

    void valuesCompareByEveryMember()
    {
        QList<UpdateInfo> different{sample, sample, sample, sample, sample};
        different[1].version = QStringLiteral("1.3");
        different[2].build = 58;
        different[3].downloadURL = QUrl(QStringLiteral("https://abissora.example/"));
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
        unusual.downloadURL = QUrl(QStringLiteral("https://è.example/perché?a=%20b&c=ü#è"));
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
        QCOMPARE(decoded.error().description(), QStringLiteral(".downloadURL: expected an address"));
    }

    void errorsHaveDescriptions()
    {
        using Case = UpdateCheckError::Case;
        QCOMPARE(UpdateCheckError{Case::network}.errorDescription(),
                 QStringLiteral("Impossibile contattare il sito. Controlla la connessione."));
        QCOMPARE(UpdateCheckError{Case::invalidResponse}.errorDescription(),
                 QStringLiteral("Il server non ha risposto correttamente."));
        QCOMPARE(UpdateCheckError{Case::invalidManifest}.errorDescription(),
                 QStringLiteral("Il file di aggiornamento sul sito non è valido."));
    }
};

ABISSORA_TEST(tst_UpdateInfo);
#include "tst_UpdateInfo.moc"
