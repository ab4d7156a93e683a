// SPDX-License-Identifier: MIT
#include "AboutView.h"
#include "Alert.h"
#include "AppWindows.h"
#include "Gui.h"
#include "HelpView.h"
#include "Literals.h"
#include "RegisterFixture.h"
#include "TestRunner.h"
#include "UpdateView.h"

#include <QAbstractButton>
#include <QApplication>
#include <QListView>
#include <QPointer>
#include <QSignalSpy>

using namespace abissora;
using namespace abissora::test;

namespace {

UpdateInfo release(const QString& version)
{
    UpdateInfo update;
    update.version = version;
    update.build = 57;
    update.downloadURL = QUrl(u"https://abissora.example/"_s + version);
    return update;
}

/// The visible windows whose content is a View.
template <typename View>
QList<QWidget*> windowsOf()
{
    QList<QWidget*> found;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->findChild<View*>() != nullptr)
            found.append(window);
    return found;
}

} // namespace

class tst_AppWindows : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void thereIsOneAboutWindow()
    {
        RegisterFixture f;
        AppWindows windows({f.info, f.product}, f.opener);
        windows.openAbout();
        QCOMPARE(windowsOf<AboutView>().size(), 1);
        QWidget* about = windowsOf<AboutView>().constFirst();
        QCOMPARE(about->windowTitle(), u"Informazioni su Abissora"_s);
        QVERIFY(about->windowFlags() & Qt::FramelessWindowHint);
        QCOMPARE(about->size(), about->sizeHint());
        about->setWindowState(Qt::WindowMinimized);
        windows.openAbout();
        QCOMPARE(windowsOf<AboutView>(), QList<QWidget*>({about}));
        QVERIFY(!about->isMinimized());
    }

    void theGuideIsTheProgramsOwn()
    {
        RegisterFixture f;
        for (const bool looksForUpdates : {true, false}) {
            if (!looksForUpdates)
                f.product.manifestURL.clear();
            AppWindows windows({f.info, f.product}, f.opener);
            windows.openHelp();
            const auto* sections = windowsOf<HelpView>().constFirst()->findChild<QListView*>(u"helpSections"_s);
            QCOMPARE(sections->model()->rowCount(), int(HelpLoader::load().size()) - (looksForUpdates ? 0 : 1));
        }
    }

    void thereIsOneHelpWindow()
    {
        RegisterFixture f;
        AppWindows windows({f.info, f.product}, f.opener);
        windows.openHelp();
        windows.openHelp();
        QCOMPARE(windowsOf<HelpView>().size(), 1);
        const QWidget* help = windowsOf<HelpView>().constFirst();
        QCOMPARE(help->windowTitle(), u"Aiuto"_s);
        QCOMPARE(help->minimumSize(), QSize(880, 640));
        QVERIFY(!(help->windowFlags() & Qt::FramelessWindowHint));
    }

    void escapeClosesTheHelpWindow_data()
    {
        QTest::addColumn<QString>("place");
        for (const auto& place : {u"helpSearch"_s, u"helpSections"_s, u"helpPage"_s})
            QTest::newRow(qUtf8Printable(place)) << place;
    }

    void escapeClosesTheHelpWindow()
    {
        QFETCH(const QString, place);
        RegisterFixture f;
        AppWindows windows({f.info, f.product}, f.opener);
        windows.openHelp();
        QWidget& help = *windowsOf<HelpView>().constFirst();
        activate(help);
        auto& focused = part(help, place);
        focused.setFocus();
        // The search empties itself first.
        if (place == "helpSearch"_L1) {
            type(help, place, u"scadenza"_s);
            QTest::keyClick(&focused, Qt::Key_Escape);
            QVERIFY(help.isVisible());
            QCOMPARE(focused.property("text").toString(), QString());
        }
        QTest::keyClick(&focused, Qt::Key_Escape);
        QVERIFY(!help.isVisible());
    }

    void thereIsOneUpdateWindowForEachOffer()
    {
        RegisterFixture f;
        AppWindows windows({f.info, f.product}, f.opener);
        windows.openUpdate(release(u"1.3.0"_s));
        windows.openUpdate(release(u"1.3.0"_s));
        QCOMPARE(windowsOf<UpdateView>().size(), 1);
        QCOMPARE(windowsOf<UpdateView>().constFirst()->windowTitle(), u"Aggiornamento disponibile"_s);
        windows.openUpdate(release(u"1.4.0"_s));
        QCOMPARE(windowsOf<UpdateView>().size(), 2);
        UpdateInfo withNotes = release(u"1.4.0"_s);
        withNotes.releaseNotes = u"Novità"_s;
        windows.openUpdate(withNotes);
        QCOMPARE(windowsOf<UpdateView>().size(), 3);
    }

    void anOfferTakesNothingFromWhoTypes()
    {
        RegisterFixture f;
        AppWindows windows({f.info, f.product}, f.opener);
        windows.openUpdate(release(u"1.3.0"_s));
        QWidget* const offer = windowsOf<UpdateView>().constFirst();
        QVERIFY(offer->testAttribute(Qt::WA_ShowWithoutActivating));
        // Where a new window has the keyboard whatever it wants.
        activate(*offer);
        for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_A})
            QTest::keyClick(offer->focusWidget(), key);
        QCOMPARE(f.opener.opened(), QList<QUrl>());
        QVERIFY(offer->isVisible());
    }

    void anOfferWaitsForTheLastSheet()
    {
        RegisterFixture f;
        QWidget main;
        activate(main);
        AppWindows windows({f.info, f.product}, f.opener);
        const QPointer<Alert> first = Alert::notice(&main, u"Titolo"_s, u"Testo"_s);
        const QPointer<Alert> second = Alert::notice(first, u"Titolo"_s, u"Testo"_s);
        windows.openUpdate(release(u"1.3.0"_s));
        settle();
        QVERIFY(windowsOf<UpdateView>().isEmpty());
        second->reject();
        settle();
        QVERIFY(windowsOf<UpdateView>().isEmpty());
        first->reject();
        settle();
        QCOMPARE(windowsOf<UpdateView>().size(), 1);
    }

    void anOfferThatWaitsMayBeTakenBack()
    {
        RegisterFixture f;
        QWidget main;
        activate(main);
        AppWindows windows({f.info, f.product}, f.opener);
        const QPointer<Alert> alert = Alert::notice(&main, u"Titolo"_s, u"Testo"_s);
        windows.openUpdate(release(u"1.3.0"_s));
        windows.closeUpdates();
        alert->reject();
        settle();
        QVERIFY(windowsOf<UpdateView>().isEmpty());
    }

    void theOfferClosesItsWindow()
    {
        RegisterFixture f;
        AppWindows windows({f.info, f.product}, f.opener);
        windows.openUpdate(release(u"1.3.0"_s));
        QSignalSpy dismissed(&windows, &AppWindows::updateDismissed);
        press(*windowsOf<UpdateView>().constFirst(), u"Più tardi"_s);
        QVERIFY(windowsOf<UpdateView>().isEmpty());
        QCOMPARE(dismissed.size(), 1);
        settle();
        windows.openUpdate(release(u"1.3.0"_s));
        QCOMPARE(windowsOf<UpdateView>().size(), 1);
    }

    void aClosedWindowOpensAgain_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::newRow("Escape") << int(Qt::Key_Escape) << Qt::KeyboardModifiers(Qt::NoModifier);
        QTest::newRow("Ctrl+W") << int(Qt::Key_W) << Qt::KeyboardModifiers(Qt::ControlModifier);
    }

    void aClosedWindowOpensAgain()
    {
        QFETCH(const int, key);
        QFETCH(const Qt::KeyboardModifiers, modifiers);
        RegisterFixture f;
        AppWindows windows({f.info, f.product}, f.opener);
        windows.openAbout();
        settle();
        QTest::keyClick(windowsOf<AboutView>().constFirst(), static_cast<Qt::Key>(key), modifiers);
        QVERIFY(windowsOf<AboutView>().isEmpty());
        settle();
        windows.openAbout();
        QCOMPARE(windowsOf<AboutView>().size(), 1);
        QTest::mouseClick(windowsOf<AboutView>().constFirst()->findChild<QAbstractButton*>(u"closeWindow"_s),
                          Qt::LeftButton);
        QVERIFY(windowsOf<AboutView>().isEmpty());
    }

    void theyStandOverTheMainWindow()
    {
        RegisterFixture f;
        QWidget main;
        main.setGeometry(100, 50, 1000, 700);
        main.show();
        AppWindows windows({f.info, f.product}, f.opener);
        windows.setMainWindow(&main);
        windows.openHelp();
        const QPoint distance = windowsOf<HelpView>().constFirst()->geometry().center() - main.geometry().center();
        QVERIFY2(distance.manhattanLength() <= 8, qPrintable(u"%1 %2"_s.arg(distance.x()).arg(distance.y())));
    }

    void allCloseTogether()
    {
        RegisterFixture f;
        AppWindows windows({f.info, f.product}, f.opener);
        windows.openAbout();
        windows.openHelp();
        windows.openUpdate(release(u"1.3.0"_s));
        windows.closeAll();
        for (const QWidget* window : QApplication::topLevelWidgets())
            QVERIFY2(!window->isVisible(), qPrintable(window->windowTitle()));
    }
};

ABISSORA_TEST(tst_AppWindows);
#include "tst_AppWindows.moc"
