// SPDX-License-Identifier: MIT
#include "UpdateOffer.h"

#include "Literals.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

const QUrl website(u"https://abissora.example/"_s);
const QString unknownNotes = u"Consulta il sito dell'applicazione per i dettagli del rilascio."_s;

UpdateInfo release(const std::optional<QString>& notes = u"• Correzioni"_s)
{
    return {u"1.3.0"_s, 57, QUrl(u"https://abissora.example/scarica?v=1.3.0"_s), notes};
}

UpdateInfo hostile()
{
    UpdateInfo update = release(u"<h1>Titolo</h1>\u202E\u0007"_s);
    update.version = u"<b>9</b>\n"_s + QString(100'000, u'9');
    return update;
}

} // namespace

class tst_UpdateOffer : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatTheReleaseSays()
    {
        const UpdateOffer offer = UpdateOffer::of(release(), website);
        QCOMPARE(offer.version, u"Nuova versione · 1.3.0 (build 57)"_s);
        QCOMPARE(offer.notes, u"• Correzioni"_s);
        QCOMPARE(offer.page, release().downloadURL);
    }

    void notesThatSayNothingAreReplaced_data()
    {
        QTest::addColumn<std::optional<QString>>("notes");
        QTest::newRow("none") << std::optional<QString>();
        QTest::newRow("empty") << std::optional(QString());
        QTest::newRow("blank") << std::optional(u" \n\u0007\t"_s);
    }

    void notesThatSayNothingAreReplaced()
    {
        QFETCH(std::optional<QString>, notes);
        QCOMPARE(UpdateOffer::of(release(notes), website).notes, unknownNotes);
    }

    void whatNoBrowserOpensGivesWayToTheWebsite()
    {
        UpdateInfo update = release();
        update.downloadURL = QUrl(u"file:///etc/passwd"_s);
        QCOMPARE(UpdateOffer::of(update, website).page, website);
    }

    void hostileTextsAreShortAndPlain()
    {
        const UpdateOffer offer = UpdateOffer::of(hostile(), website);
        QVERIFY(offer.version.startsWith(u"Nuova versione · <b>9</b> 99"_s));
        QVERIFY(offer.version.endsWith(u"… (build 57)"_s));
        QVERIFY(offer.version.size() < 150);
        QCOMPARE(offer.notes, u"<h1>Titolo</h1>"_s);
        QCOMPARE(UpdateOffer::of(release(QString(200'000, u'n')), website).notes.size(), 100'001);
    }

    void aCheckEndsInOneLine_data()
    {
        QTest::addColumn<std::optional<UpdateInfo>>("update");
        QTest::addColumn<std::optional<QString>>("error");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isError");
        const std::optional<QString> none;
        const std::optional error(u"Il server non ha risposto correttamente."_s);
        const QString found = u"Versione 1.3.0 (build 57) disponibile"_s;
        QTest::newRow("newer") << std::optional(release()) << none << found << false;
        QTest::newRow("newer after all") << std::optional(release()) << error << found << false;
        QTest::newRow("current") << std::optional<UpdateInfo>() << none << u"Hai già l'ultima versione"_s << false;
        QTest::newRow("failed") << std::optional<UpdateInfo>() << error << *error << true;
    }

    void aCheckEndsInOneLine()
    {
        QFETCH(std::optional<UpdateInfo>, update);
        QFETCH(std::optional<QString>, error);
        const CheckOutcome outcome = CheckOutcome::of(update, error);
        QTEST(outcome.text, "text");
        QTEST(outcome.isError, "isError");
    }

    void aHostileVersionIsToldInShort()
    {
        const CheckOutcome outcome = CheckOutcome::of(hostile(), std::nullopt);
        QVERIFY(outcome.text.startsWith(u"Versione <b>9</b> 99"_s));
        QVERIFY(outcome.text.endsWith(u"… (build 57) disponibile"_s));
        QVERIFY(outcome.text.size() < 150);
    }
};

ABISSORA_TEST(tst_UpdateOffer);
#include "tst_UpdateOffer.moc"
