// SPDX-License-Identifier: MIT
#include "Alert.h"
#include "Buttons.h"
#include "ClippedTexts.h"
#include "GroupBox.h"
#include "ReleaseNotes.h"
#include "ScaledText.h"
#include "ScreenFixture.h"
#include "TestRunner.h"
#include "Theme.h"
#include "UpdateView.h"

#include <QAccessible>
#include <QApplication>
#include <QScrollBar>
#include <QSignalSpy>

using namespace abissora;

namespace {

const QUrl address(QStringLiteral("https://abissora.example/scarica?v=1.3.0"));

UpdateInfo release(const std::optional<QString>& notes = QStringLiteral("• Ricerca nella guida\n• Correzioni"))
{
    return {QStringLiteral("1.3.0"), 57, address, notes};
}

struct Offer
{
    explicit Offer(const UpdateInfo& update = release())
        : view(f.context, update)
        , closed(&view, &UpdateView::closeRequested)
    {
        view.show();
        view.activateWindow();
        if (!QTest::qWaitForWindowActive(&view))
            qFatal("the view was not shown");
    }

    [[nodiscard]] ReleaseNotes& notes() const { return *view.findChild<ReleaseNotes*>(); }
    [[nodiscard]] QString versionLine() const { return view.findChild<QLabel*>(QStringLiteral("newVersion"))->text(); }
    [[nodiscard]] QAbstractButton& button(const char* name) const
    {
        return *view.findChild<QAbstractButton*>(QLatin1String(name));
    }

    test::ScreenFixture f;
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
        QCOMPARE(texts.first(), QStringLiteral("Aggiornamento disponibile"));
        QVERIFY(texts.contains(QStringLiteral("Novità in questa versione")));
        QCOMPARE(o.versionLine(), QStringLiteral("Nuova versione · 1.3.0 (build 57)"));
        QCOMPARE(o.notes().toPlainText(), *release().releaseNotes);
        QCOMPARE(o.button("later").text(), QStringLiteral("Più tardi"));
        QCOMPARE(o.button("download").text(), QStringLiteral("Scarica la nuova versione"));
        QCOMPARE(o.view.update(), release());
        QCOMPARE(o.f.http.requested().size(), 0);
    }

    void withoutNotes_data()
    {
        QTest::addColumn<std::optional<QString>>("notes");
        QTest::newRow("none") << std::optional<QString>();
        QTest::newRow("empty") << std::optional(QString());
        QTest::newRow("blank") << std::optional(QStringLiteral(" \n\u0007\t"));
    }

    void withoutNotes()
    {
        QFETCH(std::optional<QString>, notes);
        const Offer o(release(notes));
        QCOMPARE(o.notes().toPlainText(),
                 QStringLiteral("Consulta il sito dell'applicazione per i dettagli del rilascio."));
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

    void onlyABrowserIsOpened_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isOpened");
        QTest::newRow("https") << QStringLiteral("https://abissora.example/a%20b?c#d") << true;
        QTest::newRow("http") << QStringLiteral("http://abissora.example:8080/") << true;
        QTest::newRow("upper case") << QStringLiteral("HTTPS://ABISSORA.EXAMPLE/") << true;
        for (const char* text :
             {"file:///etc/passwd", "file://server/share/a.exe", "javascript:alert(1)", "data:text/html,a", "scarica",
              "//abissora.example/", "mailto:a@b.example", "smb://server/share", "ms-msdt:/id", "https:scarica",
              "https:///etc/passwd", "qrc:/appicon/abissora.svg", "-a"})
            QTest::newRow(text) << QString::fromLatin1(text) << false;
    }

    void onlyABrowserIsOpened()
    {
        QFETCH(QString, text);
        QFETCH(bool, isOpened);
        UpdateInfo update = release();
        update.downloadURL = QUrl(text, QUrl::StrictMode);
        QVERIFY(update.downloadURL.isValid());
        const Offer o(update);
        QTest::mouseClick(&o.button("download"), Qt::LeftButton);
        QCOMPARE(o.f.opener.opened(), QList<QUrl>({isOpened ? update.downloadURL : o.f.product.websiteURL}));
        QCOMPARE(o.closed.size(), 1);
    }

    void saysWhenNothingOpensTheAddress()
    {
        Offer o;
        o.f.opener.succeed(false);
        QTest::mouseClick(&o.button("download"), Qt::LeftButton);
        QCOMPARE(o.closed.size(), 0);
        const auto* notice = o.view.findChild<Alert*>();
        QVERIFY(notice != nullptr && notice->isVisible());
        QVERIFY(notice->message().endsWith(QLatin1Char('\n') + address.toString()));
        QTest::mouseClick(notice->safeButton(), Qt::LeftButton);
        QTRY_VERIFY(o.view.findChild<Alert*>() == nullptr);
        QCOMPARE(o.closed.size(), 0);
    }

    void hostileTextsStayPlain()
    {
        UpdateInfo update =
            release(QStringLiteral("<h1>Titolo</h1><img src=\"https://abissora.example/a.png\">\u0007"));
        update.version = QStringLiteral("<b>9</b>\n") + QString(100'000, QLatin1Char('9'));
        const Offer o(update);
        QCOMPARE(o.notes().toPlainText(),
                 QStringLiteral("<h1>Titolo</h1><img src=\"https://abissora.example/a.png\">"));
        QVERIFY(o.versionLine().startsWith(QStringLiteral("Nuova versione · <b>9</b> 99")));
        QVERIFY(o.versionLine().endsWith(QStringLiteral("… (build 57)")));
        QVERIFY(o.versionLine().size() < 150);
        for (const QLabel* label : o.view.findChildren<QLabel*>())
            QCOMPARE(label->textFormat(), Qt::PlainText);
        QVERIFY(o.view.height() < 700);
    }

    void longNotesScroll_data()
    {
        QTest::addColumn<QString>("notes");
        QTest::newRow("lines") << QStringLiteral("Riga\n").repeated(500);
        QTest::newRow("one long line") << QStringLiteral("parola ").repeated(5'000);
        QTest::newRow("no spaces") << QString(20'000, QLatin1Char('W'));
        QTest::newRow("a million") << QString(1'000'000, QLatin1Char('\n'));
    }

    void longNotesScroll()
    {
        QFETCH(QString, notes);
        const Offer o(release(QStringLiteral("Inizio ") + notes));
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
        const Offer o(
            release(QStringLiteral("Una riga che va a capo perché è più larga della finestra. ").repeated(4)));
        QCOMPARE(o.notes().verticalScrollBar()->maximum(), 0);
        QVERIFY(o.notes().height() < o.notes().heightForWidth(o.notes().width()) * 2);
    }

    void everythingIsReachedInReadingOrder()
    {
        Offer o;
        o.view.setFocus();
        QVERIFY(o.button("download").hasFocus());
        QWidget* const order[] = {&o.notes(), &o.button("later"), &o.button("download")};
        for (QWidget* widget : order) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), widget);
            QVERIFY(!QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name).isEmpty());
        }
        QTest::keyClick(&o.button("download"), Qt::Key_Space);
        QCOMPARE(o.closed.size(), 1);
        o.notes().setFocus();
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
