// SPDX-License-Identifier: MIT
#include "Announcements.h"
#include "Buttons.h"
#include "Cards.h"
#include "ClippedTexts.h"
#include "Gui.h"
#include "Literals.h"
#include "RegisterFixture.h"
#include "ScaledText.h"
#include "TestRunner.h"
#include "Theme.h"
#include "UpdateView.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalSpy>

using namespace abissora;

namespace {

const QUrl address(u"https://abissora.example/scarica?v=1.3.0"_s);

UpdateInfo release(const std::optional<QString>& notes = u"• Ricerca nella guida\n• Correzioni"_s)
{
    return {u"1.3.0"_s, 57, address, notes};
}

struct Offer
{
    explicit Offer(const UpdateInfo& update = release())
        : view(update, f.product.websiteURL, f.opener)
        , closed(&view, &UpdateView::closeRequested)
    {
        test::activate(view);
    }

    [[nodiscard]] QPlainTextEdit& notes() const { return *view.findChild<QPlainTextEdit*>(); }
    [[nodiscard]] QString versionLine() const { return test::textOf(view, "newVersion"); }
    [[nodiscard]] QAbstractButton& button(const char* name) const { return test::usable<QAbstractButton>(view, name); }

    test::RegisterFixture f;
    UpdateView view;
    QSignalSpy closed;
};

} // namespace

class tst_UpdateView : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void showsTheRelease()
    {
        const Offer o;
        QStringList texts;
        for (const QLabel* label : o.view.findChildren<QLabel*>())
            texts.append(label->text());
        QCOMPARE(texts.first(), u"Aggiornamento disponibile"_s);
        QVERIFY(texts.contains(u"Novità in questa versione"_s));
        QCOMPARE(o.versionLine(), u"Nuova versione · 1.3.0 (build 57)"_s);
        QCOMPARE(o.notes().toPlainText(), *release().releaseNotes);
        QCOMPARE(o.button("later").text(), u"Più tardi"_s);
        QCOMPARE(o.button("download").text(), u"Scarica la nuova versione"_s);
        QCOMPARE(o.f.http.requested().size(), 0);
    }

    void laterCloses()
    {
        const Offer o;
        QTest::mouseClick(&o.button("later"), Qt::LeftButton);
        QCOMPARE(o.closed.size(), 1);
        QCOMPARE(o.f.opener.opened(), QList<QUrl>());
    }

    void escapeClosesFromEverywhere()
    {
        Offer o;
        QTest::keyClick(&o.button("download"), Qt::Key_Escape);
        QCOMPARE(o.closed.size(), 1);
        o.notes().setFocus();
        QTest::keyClick(&o.notes(), Qt::Key_Escape);
        QCOMPARE(o.closed.size(), 2);
    }

    void downloadOpensTheAddressAndThenCloses()
    {
        const Offer o;
        bool openedBefore = false;
        connect(&o.view, &UpdateView::closeRequested, &o.view, [&] { openedBefore = !o.f.opener.opened().isEmpty(); });
        QTest::mouseClick(&o.button("download"), Qt::LeftButton);
        QCOMPARE(o.f.opener.opened(), QList<QUrl>({address}));
        QCOMPARE(o.closed.size(), 1);
        QVERIFY(openedBefore);
        QCOMPARE(o.f.http.requested().size(), 0);
    }

    void onlyABrowserIsOpened()
    {
        UpdateInfo update = release();
        update.downloadURL = QUrl(u"file:///etc/passwd"_s);
        const Offer o(update);
        QTest::mouseClick(&o.button("download"), Qt::LeftButton);
        QCOMPARE(o.f.opener.opened(), QList<QUrl>({o.f.product.websiteURL}));
        QCOMPARE(o.closed.size(), 1);
    }

    void saysWhenNothingOpensTheAddress()
    {
        Offer o;
        QVERIFY(!test::isShown(o.view, "unopened"));
        o.f.opener.succeed(false);
        const test::Announcements announcements;
        QTest::mouseClick(&o.button("download"), Qt::LeftButton);
        QCOMPARE(announcements.texts(), QStringList{test::textOf(o.view, "unopened")});
        test::settle();
        QCOMPARE(o.closed.size(), 0);
        QCOMPARE(test::textOf(o.view, "unopened"),
                 u"Il sistema non ha aperto la pagina da cui scaricare: forse manca un browser. L'indirizzo è:\n"_s +
                     address.toString());
        o.view.adjustSize(); // as its window does
        test::settle();
        QCOMPARE(test::clippedTexts(o.view), QStringList());
        QTest::mouseClick(&o.button("copyAddress"), Qt::LeftButton);
        QCOMPARE(QGuiApplication::clipboard()->text(), address.toString());
        QCOMPARE(o.closed.size(), 0);
        o.f.opener.succeed(true);
        QTest::mouseClick(&o.button("download"), Qt::LeftButton);
        QCOMPARE(o.closed.size(), 1);
        QCOMPARE(o.f.opener.opened().size(), 2);
    }

    void tellsWhoseAddressItIs_data()
    {
        QTest::addColumn<QString>("download");
        QTest::addColumn<QString>("host");
        QTest::newRow("plain") << address.toString() << u"abissora.example"_s;
        QTest::newRow("looks like another") << u"https://abissora.example@altrove.example/x"_s << u"altrove.example"_s;
        QTest::newRow("other letters") << u"https://аbissora.example/"_s << u"xn--bissora-1fg.example"_s;
        QTest::newRow("no web page") << u"file:///etc/passwd"_s << u"abissora.example"_s;
    }

    void tellsWhoseAddressItIs()
    {
        QFETCH(const QString, download);
        QFETCH(const QString, host);
        UpdateInfo update = release();
        update.downloadURL = QUrl(download);
        const Offer o(update);
        QCOMPARE(test::textOf(o.view, "downloadHost"), host);
        const auto& label = test::part<QLabel>(o.view, "downloadHost");
        QVERIFY(label.y() >= o.button("download").geometry().bottom());
        QCOMPARE(label.geometry().right(), o.button("download").geometry().right());
        QVERIFY(label.x() >= o.button("download").x()); // where its text begins
    }

    void whatWasBeingTypedDoesNothing_data()
    {
        QTest::addColumn<int>("key");
        for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_S, Qt::Key_Backspace})
            QTest::newRow(qUtf8Printable(QKeySequence(key).toString())) << int(key);
    }

    void whatWasBeingTypedDoesNothing()
    {
        QFETCH(const int, key);
        const Offer o;
        QTest::keyClick(o.view.window()->focusWidget(), static_cast<Qt::Key>(key));
        QCOMPARE(o.closed.size(), 0);
        QCOMPARE(o.f.opener.opened(), QList<QUrl>());
        QCOMPARE(o.notes().toPlainText(), *release().releaseNotes);
    }

    void waitsForABrowserThatComesLate()
    {
        Offer o;
        o.f.opener.beSlow();
        QTest::mouseClick(&o.button("download"), Qt::LeftButton);
        QTest::mouseClick(&o.button("download"), Qt::LeftButton);
        QCOMPARE(o.f.opener.opened(), QList<QUrl>({address}));
        QCOMPARE(o.closed.size(), 0);
        o.f.opener.answer(true);
        QCOMPARE(o.closed.size(), 1);
    }

    void theOfferMayBeGoneBeforeTheBrowserComes()
    {
        test::RegisterFixture f;
        f.opener.beSlow();
        auto view = std::make_unique<UpdateView>(release(), f.product.websiteURL, f.opener);
        view->show();
        view->findChild<QAbstractButton*>(u"download"_s)->click();
        view.reset();
        f.opener.answer(true);
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void hostileTextsStayPlain()
    {
        UpdateInfo update = release(u"<h1>Titolo</h1><img src=\"https://abissora.example/a.png\">\u0007"_s);
        update.version = u"<b>9</b>\n"_s + QString(100'000, u'9');
        const Offer o(update);
        QCOMPARE(o.notes().toPlainText(), u"<h1>Titolo</h1><img src=\"https://abissora.example/a.png\">"_s);
        QVERIFY(o.versionLine().startsWith(u"Nuova versione · <b>9</b> 99"_s));
        QVERIFY(o.versionLine().endsWith(u"… (build 57)"_s));
        QVERIFY(o.versionLine().size() < 150);
        for (const QLabel* label : o.view.findChildren<QLabel*>())
            QCOMPARE(label->textFormat(), Qt::PlainText);
        QVERIFY(o.view.height() < 700);
    }

    void longNotesScroll_data()
    {
        QTest::addColumn<QString>("notes");
        QTest::newRow("lines") << u"Riga\n"_s.repeated(500);
        QTest::newRow("one long line") << u"parola "_s.repeated(5'000);
        QTest::newRow("no spaces") << QString(20'000, u'W');
        QTest::newRow("a million") << QString(1'000'000, u'\n');
    }

    void longNotesScroll()
    {
        QFETCH(QString, notes);
        const Offer o(release(u"Inizio "_s + notes));
        QVERIFY(o.view.height() < 700);
        QScrollBar& bar = *o.notes().verticalScrollBar();
        QTRY_VERIFY(bar.maximum() > 0);
        QCOMPARE(bar.value(), 0);
        QCOMPARE(o.notes().horizontalScrollBar()->maximum(), 0);
        o.notes().setFocus();
        QTest::keyClick(&o.notes(), Qt::Key_PageDown);
        QVERIFY(bar.value() > 0);
    }

    void shortNotesNeedNoScrolling()
    {
        const Offer o(release(u"Una riga che va a capo perché è più larga della finestra. "_s.repeated(4)));
        QCOMPARE(o.notes().verticalScrollBar()->maximum(), 0);
        QVERIFY(o.notes().height() < o.notes().heightForWidth(o.notes().width()) * 2);
    }

    void everythingIsReachedInReadingOrder()
    {
        Offer o;
        QVERIFY(o.notes().hasFocus());
        QWidget* const order[] = {&o.button("later"), &o.button("download"), &o.notes()};
        for (QWidget* widget : order) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), widget);
            QVERIFY(!QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name).isEmpty());
        }
        QTest::keyClick(&o.button("download"), Qt::Key_Space);
        QCOMPARE(o.closed.size(), 1);
        QTest::keyClick(&o.notes(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(o.notes().textCursor().selectedText().size(), release().releaseNotes->size());
    }

    void nothingIsClipped()
    {
        for (const double factor : {1.0, 1.25}) {
            const test::ScaledText scaled(factor);
            const Offer o;
            QCOMPARE(test::clippedTexts(o.view), QStringList());
        }
    }
};

ABISSORA_TEST(tst_UpdateView);
#include "tst_UpdateView.moc"
