// SPDX-License-Identifier: MIT
#include "Announcements.h"
#include "EquipmentTypeManagementView.h"
#include "Literals.h"
#include "ShownSettings.h"
#include "TestRunner.h"
#include "ViewSheet.h"

#include <QListView>

using namespace abissora;
using namespace abissora::test;

namespace {

const QByteArray newer = R"({"version":"1.3.0","build":57,"downloadURL":"https://abissora.example/1.3.0"})";
const QByteArray current = R"({"version":"1.2.0","build":42,"downloadURL":"https://abissora.example/"})";

QImage iconOf(IconLabel& label)
{
    return label.grab().toImage().copy(0, 0, 20, label.height());
}

bool hasInk(const QImage& image, auto isInk)
{
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (isInk(image.pixelColor(x, y)))
                return true;
    return false;
}

} // namespace

class tst_SettingsUpdates : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aNewerReleaseIsOfferedAndTold()
    {
        RegisterFixture f;
        ShownSettings s(f);
        s.click("checkForUpdates");
        QCOMPARE(f.http.requested().size(), 1);
        f.http.answer(200, newer);
        settle();
        QVERIFY(s.feedback().isVisible());
        auto* offer = s.sheet<ViewSheet>();
        QVERIFY(offer != nullptr);
        offer->reject();
        QVERIFY(!f.updates.availableUpdate());
        settle();
        QVERIFY(s.sheet<ViewSheet>() == nullptr);
        QCOMPARE(s.feedback().text(), u"Versione 1.3.0 (build 57) disponibile"_s);
    }

    void theFeedbackStandsUnderTheButton()
    {
        RegisterFixture f;
        ShownSettings s(f);
        s.click("checkForUpdates");
        f.http.answer(200, current);
        settle();
        QVERIFY(s.feedback().y() > s.button("checkForUpdates").geometry().bottom());
        QCOMPARE(s.feedback().x(), s.button("checkForUpdates").x());
    }

    void theCurrentReleaseIsTold()
    {
        RegisterFixture f;
        ShownSettings s(f);
        const Announcements heard;
        s.click("checkForUpdates");
        f.http.answer(200, current);
        QCOMPARE(s.feedback().text(), u"Hai già l'ultima versione"_s);
        QCOMPARE(heard.texts(), QStringList{u"Hai già l'ultima versione"_s});
        QVERIFY(s.sheet<ViewSheet>() == nullptr);
        QVERIFY(hasInk(iconOf(s.feedback()), [](const QColor& c) { return c.green() > c.red() + 40; }));
    }

    void aFailureIsTold_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("text");
        QTest::newRow("the server fails") << 500 << u"Il server non ha risposto correttamente."_s;
        QTest::newRow("no manifest") << 200 << u"Il file di aggiornamento sul sito non è valido."_s;
        QTest::newRow("no answer") << 0 << u"Impossibile contattare il sito dell'applicazione."_s;
    }

    void aFailureIsTold()
    {
        QFETCH(const int, status);
        QFETCH(const QString, text);
        RegisterFixture f;
        ShownSettings s(f);
        s.click("checkForUpdates");
        if (status == 0)
            f.http.answer(tl::unexpected(HttpError{HttpError::Kind::Transfer, u"Connection refused"_s}));
        else
            f.http.answer(status, "{}");
        QCOMPARE(s.feedback().text(), text);
        QVERIFY(hasInk(iconOf(s.feedback()), [](const QColor& c) { return c.red() > c.green() + 40; }));
    }

    void whileACheckIsUnderWay()
    {
        RegisterFixture f;
        ShownSettings s(f);
        QAbstractButton& check = s.button("checkForUpdates");
        const int width = check.width();
        check.setFocus();
        s.click("checkForUpdates");
        QCOMPARE(check.text(), u"Verifica in corso…"_s);
        QCOMPARE(check.width(), width);
        QVERIFY(check.hasFocus());
        s.click("checkForUpdates");
        QCOMPARE(f.http.requested().size(), 1);
        f.http.answer(200, current);
        settle();
        QCOMPARE(check.text(), u"Controlla aggiornamenti ora"_s);
        s.click("checkForUpdates");
        QCOMPARE(f.http.requested().size(), 2);
        f.http.answer(200, current);
    }

    void theViewMayGoWhileACheckIsUnderWay()
    {
        RegisterFixture f;
        {
            ShownSettings s(f);
            s.click("checkForUpdates");
        }
        f.http.answer(200, newer);
        QVERIFY(f.updates.availableUpdate());
    }

    void leavingForgetsTheFeedback()
    {
        RegisterFixture f;
        ShownSettings s(f);
        s.click("checkForUpdates");
        f.http.answer(500, {});
        QVERIFY(s.feedback().isVisible());
        s.view->hide();
        s.view->show();
        QVERIFY(!s.feedback().isVisible());
    }

    void aCheckThatEndsAfterLeavingIsNotTold()
    {
        RegisterFixture f;
        ShownSettings s(f);
        s.click("checkForUpdates");
        s.view->hide();
        s.view->show();
        QCOMPARE(s.button("checkForUpdates").text(), u"Verifica in corso…"_s);
        f.http.answer(500, {});
        QVERIFY(!s.feedback().isVisible());
        s.click("checkForUpdates");
        f.http.answer(500, {});
        QVERIFY(s.feedback().isVisible());
    }

    void anOfferFoundBeforeIsShownOnComing()
    {
        RegisterFixture f;
        ShownSettings s(f);
        s.view->hide();
        f.updates.checkForUpdates();
        f.http.answer(200, newer);
        settle();
        QVERIFY(s.sheet<ViewSheet>() == nullptr);
        s.view->show();
        settle();
        QVERIFY(s.sheet<ViewSheet>() != nullptr);
    }

    void whatTheStartFoundIsOfferedElsewhere()
    {
        RegisterFixture f;
        ShownSettings s(f);
        f.updates.checkForUpdates(CheckReason::Start);
        f.http.answer(200, newer);
        settle();
        QVERIFY(f.updates.availableUpdate());
        QVERIFY(s.sheet<ViewSheet>() == nullptr);
        s.view->hide();
        s.view->show();
        settle();
        QVERIFY(s.sheet<ViewSheet>() == nullptr);
        // The person's own check is another one.
        s.click("checkForUpdates");
        f.http.answer(200, newer);
        settle();
        QVERIFY(s.sheet<ViewSheet>() != nullptr);
    }

    void anOfferThatIsOverCloses()
    {
        RegisterFixture f;
        ShownSettings s(f);
        s.click("checkForUpdates");
        f.http.answer(200, newer);
        settle();
        QVERIFY(s.sheet<ViewSheet>() != nullptr);
        f.updates.clearAvailableUpdate();
        settle();
        QVERIFY(s.sheet<ViewSheet>() == nullptr);
    }

    void aProgramThatDoesNotLookSaysNothing()
    {
        RegisterFixture f;
        f.product.manifestURL.clear();
        ShownSettings s(f);
        for (const QString& text : s.texts())
            QVERIFY2(!text.contains("aggiornament"_L1, Qt::CaseInsensitive), qPrintable(text));
        QCOMPARE(s.view->findChildren<SettingsGroupBox*>().size(), 7);
        QVERIFY(s.information().constFirst().startsWith("Versione: "_L1));
        s.view->hide();
        s.view->show();
        s.click("openHelp");
        const auto* sections = s.sheet<ViewSheet>()->findChild<QListView*>(u"helpSections"_s);
        QCOMPARE(sections->model()->rowCount(), int(HelpLoader::load().size()) - 1);
        s.sheet<ViewSheet>()->reject();
        s.click("resetSettings");
        QCOMPARE(f.http.requested(), QList<QUrl>());
    }

    void anOfferWaitsForAnotherSheet()
    {
        RegisterFixture f;
        ShownSettings s(f);
        s.click("manageTypes");
        auto* types = s.sheet<EquipmentTypeManagementView>();
        QVERIFY(types != nullptr);
        f.updates.checkForUpdates();
        f.http.answer(200, newer);
        settle();
        QVERIFY(s.sheet<ViewSheet>() == nullptr);
        types->reject();
        settle();
        QVERIFY(s.sheet<ViewSheet>() != nullptr);
    }
};

ABISSORA_TEST(tst_SettingsUpdates);
#include "tst_SettingsUpdates.moc"
