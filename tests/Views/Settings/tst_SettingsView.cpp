// SPDX-License-Identifier: MIT
#include "Alert.h"
#include "ClippedTexts.h"
#include "EquipmentTypeManagementView.h"
#include "Literals.h"
#include "ScaledText.h"
#include "ShownSettings.h"
#include "TestRunner.h"
#include "ViewSheet.h"

#include <QAccessible>
#include <QApplication>
#include <QScrollBar>

using namespace abissora;
using namespace abissora::test;

class tst_SettingsView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyTextIsThere()
    {
        RegisterFixture f;
        ShownSettings s(f);
        const QStringList texts = s.texts();
        for (const char* text :
             {"Impostazioni",
              "Configura la tua esperienza",
              "Tipologie Attrezzatura",
              "Gestisci le tipologie di attrezzatura disponibili per la categorizzazione",
              "16 tipologie attive",
              "Gestisci Tipologie",
              "Notifiche",
              "Abilita Notifiche",
              "Giorni di anticipo",
              "Aggiornamenti",
              "Controlla aggiornamenti all'avvio",
              "Se attivo, all'avvio l'app verifica sul sito se esiste una versione più recente e la propone.",
              "Controlla aggiornamenti ora",
              "Impostazioni Generali",
              "Intervallo Tagliando Default",
              "6 Mesi",
              "1 Anno",
              "2 Anni",
              "Simbolo Valuta",
              "Aspetto",
              "Modalità Scura",
              "Aiuto",
              "Guida all'uso completa del programma: funzioni, manutenzioni, allegati PDF e domande frequenti",
              "Apri la Guida",
              "Informazioni",
              "Versione",
              "Data Build",
              "Sviluppato da",
              "Copyright",
              "Tipologie disponibili",
              "Icone: Game Icons (CC BY 3.0), MDI, Icon-Park, Lucide",
              "abissora.example",
              "— sito dell'applicazione",
              "Ripristino",
              "Ripristina Impostazioni Default",
              "Ripristina tutte le impostazioni ai valori predefiniti"})
            QVERIFY2(texts.contains(QString::fromUtf8(text)), text);
        QVERIFY(!s.feedback().isVisible());
    }

    void groupsStandInTheirOrder()
    {
        RegisterFixture f;
        ShownSettings s(f);
        QStringList titles;
        QList<SettingsGroupBox*> groups = s.view->findChildren<SettingsGroupBox*>();
        std::sort(groups.begin(), groups.end(), [](auto* a, auto* b) { return a->y() < b->y(); });
        for (const SettingsGroupBox* group : groups)
            titles.append(group->title());
        QCOMPARE(titles, QStringList({u"Tipologie Attrezzatura"_s, u"Notifiche"_s, u"Aggiornamenti"_s,
                                      u"Impostazioni Generali"_s, u"Aspetto"_s, u"Aiuto"_s, u"Informazioni"_s,
                                      u"Ripristino"_s}));
    }

    void itSaysWhatIsRunning()
    {
        RegisterFixture f;
        f.product.author = u"Sub Mare"_s;
        ShownSettings s(f);
        QCOMPARE(s.information(), QStringList({u"Versione: 1.2.0 (build 42)"_s, u"Data Build: "_s + f.info.buildDate(),
                                               u"Sviluppato da: Sub Mare"_s, u"Copyright: © 2026 Sub Mare"_s,
                                               u"Tipologie disponibili: 16"_s}));
        f.clock.advance(std::chrono::hours(24 * 365));
        s.view->hide();
        s.view->show();
        QCOMPARE(s.information().at(3), u"Copyright: © 2027 Sub Mare"_s);
    }

    void theCountsFollowTheTypes()
    {
        RegisterFixture f;
        ShownSettings s(f);
        f.types.deleteType(f.types.types().first());
        settle();
        QVERIFY(s.texts().contains(u"15 tipologie attive"_s));
        QCOMPARE(s.information().constLast(), u"Tipologie disponibili: 15"_s);
    }

    void theWebsiteOpensOutside()
    {
        RegisterFixture f;
        ShownSettings s(f);
        s.click("website");
        QCOMPARE(f.opener.opened(), QList<QUrl>({QUrl(u"https://abissora.example/"_s)}));
        QAccessibleInterface* const link = QAccessible::queryAccessibleInterface(&s.button("website"));
        QCOMPARE(link->role(), QAccessible::Link);
        QCOMPARE(link->text(QAccessible::Name), u"abissora.example"_s);
        QVERIFY(!link->state().checkable);
        link->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        settle();
        QCOMPARE(f.opener.opened().size(), 2);
    }

    void saysWhenNothingOpensTheWebsite()
    {
        RegisterFixture f;
        f.opener.succeed(false);
        ShownSettings s(f);
        s.click("website");
        const auto* notice = s.sheet<Alert>();
        QVERIFY(notice != nullptr);
        QVERIFY(notice->message().endsWith(u"\nhttps://abissora.example/"_s));
    }

    void sheetsOpenAndGiveTheFocusBack()
    {
        RegisterFixture f;
        ShownSettings s(f);
        s.button("manageTypes").setFocus();
        s.click("manageTypes");
        QVERIFY(s.view->showingTypeManagement());
        s.sheet<EquipmentTypeManagementView>()->reject();
        settle();
        QVERIFY(!s.view->showingTypeManagement());
        QVERIFY(s.button("manageTypes").hasFocus());
        s.button("openHelp").setFocus();
        s.click("openHelp");
        QVERIFY(s.view->showingHelp());
        QCOMPARE(s.sheet<ViewSheet>()->focusWidget()->objectName(), u"helpSearch"_s);
        QTest::keyClick(s.sheet<ViewSheet>(), Qt::Key_Escape);
        settle();
        QVERIFY(!s.view->showingHelp());
        QVERIFY(s.button("openHelp").hasFocus());
    }

    void resetAsksNothing()
    {
        RegisterFixture f;
        f.settings.setReminderDays(44);
        f.settings.setDarkMode(true);
        f.settings.setCurrencySymbol(u"$"_s);
        EquipmentTypeModel own = f.types.types().first();
        own.id = SequentialIds::at(900);
        own.name = u"Scooter"_s;
        f.types.addType(own);
        QVERIFY(f.preferences.setInteger(EquipmentTypeViewModel::iconVersionKey, 3));
        ShownSettings s(f);
        s.click("resetSettings");
        QCOMPARE(f.settings.reminderDays(), 30);
        QCOMPARE(f.settings.darkMode(), false);
        QCOMPARE(f.settings.currencySymbol(), u"€"_s);
        QCOMPARE(f.types.types().size(), 16);
        QCOMPARE(f.types.getTypeByName(u"Scooter"_s), std::nullopt);
        QCOMPARE(f.preferences.integer(EquipmentTypeViewModel::iconVersionKey), std::optional<std::int64_t>(4));
        for (const char* key : {"notificationsEnabled", "reminderDays", "defaultServiceInterval", "currencySymbol",
                                "darkMode", "checkForUpdatesOnLaunch"})
            QVERIFY2(QFile::exists(f.preferences.path(QLatin1String(key))), key);
    }

    void tabOrderIsReadingOrder()
    {
        RegisterFixture f;
        ShownSettings s(f, {900, 1600});
        s.button("manageTypes").setFocus();
        QStringList order;
        int lastY = -1;
        for (int i = 0; i < 16; ++i) {
            QWidget* focused = QApplication::focusWidget();
            order.append(focused->objectName().isEmpty() ? focused->parentWidget()->objectName()
                                                         : focused->objectName());
            const int y = focused->mapTo(&s.window, QPoint()).y();
            QVERIFY2(y > lastY, qPrintable(order.last()));
            lastY = y;
            QTest::keyClick(focused, Qt::Key_Tab);
        }
        QCOMPARE(order, QStringList({u"manageTypes"_s, u"notificationsEnabled"_s, u"reminderDays"_s,
                                     u"checkForUpdatesOnLaunch"_s, u"checkForUpdates"_s, u"defaultServiceInterval"_s,
                                     u"currencySymbol"_s, u"darkMode"_s, u"openHelp"_s, u"informationValue"_s,
                                     u"informationValue"_s, u"informationValue"_s, u"informationValue"_s,
                                     u"informationValue"_s, u"website"_s, u"resetSettings"_s}));
    }

    void theFocusIsAlwaysInView()
    {
        RegisterFixture f;
        ShownSettings s(f, {772, 500});
        s.button("manageTypes").setFocus();
        for (int i = 0; i < 15; ++i)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QVERIFY(s.button("resetSettings").hasFocus());
        QVERIFY(s.view->viewport()->rect().contains(
            s.button("resetSettings").mapTo(s.view->viewport(), s.button("resetSettings").rect().center())));
    }

    void nothingIsCutOff_data()
    {
        QTest::addColumn<double>("textSize");
        QTest::newRow("usual text") << 1.0;
        QTest::newRow("larger text") << 1.25;
    }

    void nothingIsCutOff()
    {
        QFETCH(const double, textSize);
        const ScaledText scaled(textSize);
        RegisterFixture f;
        ShownSettings s(f, {772, 700});
        s.click("checkForUpdates");
        f.http.answer(tl::unexpected(HttpError{}));
        settle();
        QCOMPARE(clippedTexts(*s.view), QStringList());
        QCOMPARE(s.view->horizontalScrollBar()->maximum(), 0);
    }
};

ABISSORA_TEST(tst_SettingsView);
#include "tst_SettingsView.moc"
