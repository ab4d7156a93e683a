// SPDX-License-Identifier: MIT
#include "EquipmentTypeFormView.h"

#include "Buttons.h"
#include "ClippedTexts.h"
#include "ColorChoice.h"
#include "DivingIconButton.h"
#include "GroupBox.h"
#include "IconGrid.h"
#include "SearchField.h"
#include "Stepper.h"
#include "TestRunner.h"
#include "Theme.h"
#include "TypePreview.h"
#include "TypesParts.h"

#include <QAccessible>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>

using namespace abissora;
using namespace abissora::test;

namespace {

using Form = OpenSheet<EquipmentTypeFormView>;
const std::optional<EquipmentTypeModel> newType;

EquipmentTypeModel boa()
{
    return {SequentialIds::at(900),
            QStringLiteral("Boa segnasub"),
            QStringLiteral("dive.compass"),
            QStringLiteral("orange"),
            365,
            true};
}

/// The type as it stands in the catalogue after its form was saved.
EquipmentTypeModel savedAs(ScreenFixture& f, const EquipmentTypeModel& type, const std::function<void(Form&)>& edit)
{
    f.types.setTypes(f.types.getDefaultTypes() + QList<EquipmentTypeModel>{type});
    Form form(f.context, std::optional(type));
    edit(form);
    form.driver.save();
    if (form.sheet.isVisible())
        qFatal("the form did not save");
    return f.types.types().last();
}

DivingIconButton& cell(Form& form, DivingIcons icon)
{
    return *form.sheet.findChild<DivingIconButton*>(rawValue(icon));
}

} // namespace

class tst_EquipmentTypeFormView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void textsOfANewType()
    {
        ScreenFixture f;
        Form o(f.context, newType);
        QCOMPARE(o.sheet.windowTitle(), QStringLiteral("Nuova Tipologia"));
        QCOMPARE(o.sheet.windowModality(), Qt::WindowModal);
        const QStringList texts = visibleLabels(o.sheet);
        for (const char* text :
             {"Informazioni Base", "Nome Tipologia*", "* Campo obbligatorio", "Inserisci un nome valido",
              "Intervallo Tagliando", "Blu", "Selezione Icona", "Anteprima", "365 giorni"})
            QVERIFY2(texts.contains(QString::fromUtf8(text)), text);
        QCOMPARE(o.driver.part<QLineEdit>("name").placeholderText(), QStringLiteral("Inserisci il nome"));
        QCOMPARE(o.sheet.cancelButton()->text(), QStringLiteral("Annulla"));
        QCOMPARE(o.sheet.primaryButton()->text(), QStringLiteral("Salva"));
        QCOMPARE(o.driver.part<Stepper>("interval").text(), QStringLiteral("365 giorni"));
        QCOMPARE(o.driver.part<ColorChoice>("color").selectedColor(), AvailableColors::blue);
        QVERIFY(cell(o, DivingIcons::regulator).isChecked());
        QVERIFY(o.driver.part<QLineEdit>("name").hasFocus());
    }

    void textsOfAnEditedType()
    {
        ScreenFixture f;
        Form o(f.context, std::optional(boa()));
        QCOMPARE(o.sheet.windowTitle(), QStringLiteral("Modifica Tipologia"));
        QCOMPARE(o.driver.part<QLineEdit>("name").text(), QStringLiteral("Boa segnasub"));
        QCOMPARE(o.driver.part<ColorChoice>("color").selectedColor(), AvailableColors::orange);
        QVERIFY(cell(o, DivingIcons::compass).isChecked());
        QVERIFY(!o.driver.shows("invalidName"));
        QCOMPARE(o.driver.text("previewName"), QStringLiteral("Boa segnasub"));
    }

    void addingAType()
    {
        ScreenFixture f;
        const QList<EquipmentTypeModel> before = f.types.types();
        const int ids = f.ids.count();
        Form o(f.context, newType);
        o.driver.type("name", QStringLiteral("Boa"));
        QTest::mouseClick(&o.driver.part<QAbstractButton>("teal"), Qt::LeftButton);
        QTest::mouseClick(&cell(o, DivingIcons::reel), Qt::LeftButton);
        auto& interval = o.driver.part<Stepper>("interval");
        interval.setFocus();
        QTest::keyClick(&interval, Qt::Key_Up);
        const QSignalSpy changed(&f.types, &EquipmentTypeViewModel::typesChanged);
        o.driver.save();
        QVERIFY(!o.sheet.isVisible());
        QCOMPARE(changed.size(), 1);
        QCOMPARE(f.types.types(), before + QList<EquipmentTypeModel>(
                                               {{SequentialIds::at(ids + 1), QStringLiteral("Boa"),
                                                 QStringLiteral("dive.reel"), QStringLiteral("teal"), 395, true}}));
        const auto stored = f.preferences.data(EquipmentTypeViewModel::typesKey);
        QVERIFY(stored.value()->endsWith(
            R"("name":"Boa","icon":"dive.reel","color":"teal","serviceIntervalDays":395,"isActive":true}])"));
    }

    void editingReplacesTheType()
    {
        ScreenFixture f;
        const EquipmentTypeModel saved = savedAs(f, boa(), [](Form& form) {
            form.driver.type("name", QStringLiteral("Pallone"));
            QTest::mouseClick(&form.driver.part<QAbstractButton>("mint"), Qt::LeftButton);
        });
        EquipmentTypeModel expected = boa();
        expected.name = QStringLiteral("Pallone");
        expected.color = QStringLiteral("mint");
        QCOMPARE(saved, expected);
        QCOMPARE(f.types.types().size(), 17);
    }

    void editingNothingKeepsTheType()
    {
        ScreenFixture f;
        QCOMPARE(savedAs(f, boa(), [](Form&) {}), boa());
    }

    void theNameIsStoredAsTyped()
    {
        ScreenFixture f;
        QCOMPARE(savedAs(f, boa(), [](Form& form) { form.driver.type("name", QStringLiteral("  Boa  ")); }).name,
                 QStringLiteral("  Boa  "));
    }

    void longAndHostileNamesSurvive_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("long") << QString(40'000, QLatin1Char('n'));
        QTest::newRow("markup") << QStringLiteral("<b>Boa</b> &amp; <img src=x>");
        QTest::newRow("right to left") << QStringLiteral(u"\u0645\u0646\u0638\u0645 \u202e\u05d0\u05d1");
        QTest::newRow("place markers") << QStringLiteral("%1 '%2' \"%n\"");
        QTest::newRow("line break") << QStringLiteral("Boa\nrossa");
        QTest::newRow("emoji") << QStringLiteral(u"\U0001F93F Boa");
    }
    void longAndHostileNamesSurvive()
    {
        QFETCH(QString, name);
        ScreenFixture f;
        EquipmentTypeModel type = boa();
        type.name = name;
        const EquipmentTypeModel saved = savedAs(f, type, [&name](Form& form) {
            QCOMPARE(form.driver.part<QLineEdit>("name").text(), name);
            QCOMPARE(form.driver.text("previewName"), name);
            QCOMPARE(form.driver.part<QLabel>("previewName").textFormat(), Qt::PlainText);
            QVERIFY(form.sheet.width() < 1000 && form.sheet.height() < 700);
        });
        QCOMPARE(saved, type);
    }

    void anInactiveTypeIsActiveAfterwards()
    {
        ScreenFixture f;
        EquipmentTypeModel inactive = boa();
        inactive.isActive = false;
        QCOMPARE(savedAs(f, inactive, [](Form&) {}), boa());
    }

    void anUnknownIconIsReplaced()
    {
        ScreenFixture f;
        EquipmentTypeModel type = boa();
        type.icon = QStringLiteral("compass.drawing");
        const EquipmentTypeModel saved =
            savedAs(f, type, [](Form& form) { QVERIFY(cell(form, DivingIcons::regulator).isChecked()); });
        QCOMPARE(saved.icon, QStringLiteral("dive.regulator"));
    }

    void twoTypesMayCarryOneName()
    {
        ScreenFixture f;
        Form o(f.context, newType);
        o.driver.type("name", QStringLiteral("GAV"));
        o.driver.save();
        QCOMPARE(f.types.types().size(), 17);
        QCOMPARE(f.types.getTypeByName(QStringLiteral("GAV"))->icon, QStringLiteral("dive.bcd"));
    }

    void aTypeThatIsGoneIsNotSaved()
    {
        ScreenFixture f;
        const QList<EquipmentTypeModel> before = f.types.types();
        Form o(f.context, std::optional(boa()));
        o.driver.save();
        QVERIFY(!o.sheet.isVisible());
        QCOMPARE(f.types.types(), before);
    }

    void onlyAValidFormSaves_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("valid");
        QTest::newRow("nothing") << QString() << false;
        QTest::newRow("spaces") << QStringLiteral("    ") << false;
        QTest::newRow("a name") << QStringLiteral(" B") << true;
    }
    void onlyAValidFormSaves()
    {
        QFETCH(QString, name);
        QFETCH(bool, valid);
        ScreenFixture f;
        Form o(f.context, newType);
        o.driver.type("name", QStringLiteral("x"));
        o.driver.type("name", name);
        QCOMPARE(o.sheet.primaryButton()->isEnabled(), valid);
        QCOMPARE(o.driver.shows("invalidName"), !valid);
        QTest::keyClick(&o.driver.part<QLineEdit>("name"), Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(o.sheet.isVisible(), !valid);
        QCOMPARE(f.types.types().size(), valid ? 17 : 16);
    }

    void nothingJumpsWhileANameIsTyped()
    {
        ScreenFixture f;
        Form o(f.context, newType);
        const QPoint before = o.driver.part<Stepper>("interval").mapTo(&o.sheet, QPoint());
        o.driver.type("name", QStringLiteral("Boa"));
        QCoreApplication::processEvents();
        QCOMPARE(o.driver.part<Stepper>("interval").mapTo(&o.sheet, QPoint()), before);
    }

    void intervalSteps_data()
    {
        QTest::addColumn<qint64>("stored");
        QTest::addColumn<qint64>("up");
        QTest::addColumn<qint64>("down");
        QTest::newRow("odd") << qint64(365) << qint64(395) << qint64(335);
        QTest::newRow("shortest") << qint64(30) << qint64(60) << qint64(30);
        QTest::newRow("longest") << qint64(730) << qint64(730) << qint64(700);
        QTest::newRow("near the end") << qint64(725) << qint64(730) << qint64(695);
        QTest::newRow("near the start") << qint64(31) << qint64(61) << qint64(30);
        QTest::newRow("too short") << qint64(10) << qint64(30) << qint64(10);
        QTest::newRow("negative") << qint64(-3) << qint64(30) << qint64(-3);
        QTest::newRow("too long") << qint64(2000) << qint64(2000) << qint64(730);
    }
    void intervalSteps()
    {
        QFETCH(qint64, stored);
        QFETCH(qint64, up);
        QFETCH(qint64, down);
        ScreenFixture f;
        EquipmentTypeModel type = boa();
        type.serviceIntervalDays = stored;
        const auto stepped = [&](std::optional<Qt::Key> key) {
            return savedAs(f, type,
                           [key](Form& form) {
                               auto& interval = form.driver.part<Stepper>("interval");
                               interval.setFocus();
                               if (key)
                                   QTest::keyClick(&interval, *key);
                           })
                .serviceIntervalDays;
        };
        QCOMPARE(qint64(stepped(std::nullopt)), stored);
        QCOMPARE(qint64(stepped(Qt::Key_Up)), up);
        QCOMPARE(qint64(stepped(Qt::Key_Down)), down);
    }

    void thePreviewIsLive()
    {
        ScreenFixture f;
        Form o(f.context, newType);
        const auto picture = [&o] { return o.driver.part<QWidget>("previewTile").grab().toImage(); };
        QImage last = picture();
        const auto changed = [&] { return std::exchange(last, picture()) != last; };
        o.driver.type("name", QStringLiteral("Boa"));
        QCOMPARE(o.driver.text("previewName"), QStringLiteral("Boa"));
        QVERIFY(!changed());
        QTest::mouseClick(&o.driver.part<QAbstractButton>("red"), Qt::LeftButton);
        QVERIFY(changed());
        QTest::mouseClick(&cell(o, DivingIcons::compass), Qt::LeftButton);
        QVERIFY(changed());
        auto& interval = o.driver.part<Stepper>("interval");
        interval.setFocus();
        QTest::keyClick(&interval, Qt::Key_End);
        QCOMPARE(o.driver.text("previewInterval"), QStringLiteral("730 giorni"));
        applyTheme(*qApp, Scheme::Dark);
        QVERIFY(changed());
        applyTheme(*qApp, Scheme::Light);
    }

    void thePreviewStaysInSight()
    {
        ScreenFixture f;
        Form o(f.context, newType);
        o.sheet.scrollArea()->verticalScrollBar()->setValue(o.sheet.scrollArea()->verticalScrollBar()->maximum());
        QCoreApplication::processEvents();
        const auto* preview = o.sheet.findChild<TypePreview*>();
        QCOMPARE(preview->visibleRegion().boundingRect(), preview->rect());
        o.sheet.scrollArea()->verticalScrollBar()->setValue(0);
        QCOMPARE(preview->visibleRegion().boundingRect(), preview->rect());
    }

    void leavingSavesNothing()
    {
        ScreenFixture f;
        const QList<EquipmentTypeModel> before = f.types.types();
        for (const bool byKey : {true, false}) {
            Form o(f.context, newType);
            o.driver.type("name", QStringLiteral("Boa"));
            if (byKey)
                QTest::keyClick(&o.driver.part<QLineEdit>("name"), Qt::Key_Escape);
            else
                o.driver.cancel();
            QVERIFY(!o.sheet.isVisible());
        }
        QCOMPARE(f.types.types(), before);
    }

    void escapeClearsTheSearchFirst()
    {
        ScreenFixture f;
        Form o(f.context, newType);
        o.driver.type("iconSearch", QStringLiteral("bomb"));
        QTest::keyClick(&o.driver.part<SearchField>("iconSearch"), Qt::Key_Escape);
        QVERIFY(o.sheet.isVisible());
        QTest::keyClick(&o.driver.part<SearchField>("iconSearch"), Qt::Key_Escape);
        QVERIFY(!o.sheet.isVisible());
    }

    void returnInAFieldSavesNothing()
    {
        ScreenFixture f;
        Form o(f.context, newType);
        o.driver.type("name", QStringLiteral("Boa"));
        QTest::keyClick(&o.driver.part<QLineEdit>("name"), Qt::Key_Return);
        o.driver.type("iconSearch", QStringLiteral("bomb"));
        QTest::keyClick(&o.driver.part<SearchField>("iconSearch"), Qt::Key_Return);
        QVERIFY(o.sheet.isVisible());
    }

    void searchingChangesNothing()
    {
        ScreenFixture f;
        const EquipmentTypeModel saved = savedAs(f, boa(), [](Form& form) {
            form.driver.type("iconSearch", QStringLiteral("xyz"));
            QVERIFY(form.driver.shows("noIcon"));
        });
        QCOMPARE(saved, boa());
    }

    void tabFollowsTheReadingOrder()
    {
        ScreenFixture f;
        Form o(f.context, std::optional(boa()));
        QCOMPARE(tabOrder(o.sheet).join(QLatin1Char(' ')),
                 QStringLiteral("name interval orange iconSearch dive.compass cancel primary"));
    }

    void theKeyboardBringsIconsIntoSight()
    {
        ScreenFixture f;
        Form o(f.context, newType);
        cell(o, DivingIcons::regulator).setFocus(Qt::TabFocusReason);
        for (const auto& [key, icon] :
             {std::pair(Qt::Key_End, DivingIcons::spareParts), std::pair(Qt::Key_Home, DivingIcons::diveLight)}) {
            QTest::keyClick(o.sheet.focusWidget(), key);
            QCoreApplication::processEvents();
            QVERIFY(cell(o, icon).hasFocus());
            QCOMPARE(cell(o, icon).visibleRegion().boundingRect(), cell(o, icon).rect());
        }
    }

    void fieldsAreNamedByTheirLabels()
    {
        ScreenFixture f;
        Form o(f.context, newType);
        o.driver.type("name", QStringLiteral("Boa"));
        const QList<QPair<const char*, QString>> names{
            {"name", QStringLiteral("Nome Tipologia*")}, {"interval", QStringLiteral("Intervallo Tagliando")},
            {"color", QStringLiteral("Colore")},         {"iconSearch", QStringLiteral("Cerca icona...")},
            {"cancel", QStringLiteral("Annulla")},       {"primary", QStringLiteral("Salva")},
        };
        for (const auto& [part, name] : names) {
            QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&o.driver.part<QWidget>(part));
            QCOMPARE(accessible->text(QAccessible::Name), name);
        }
    }

    void theLabelsAreAsWideAsDrawn()
    {
        ScreenFixture f;
        Form o(f.context, newType);
        const auto left = [&o](const char* part) { return o.driver.part<QWidget>(part).mapTo(&o.sheet, QPoint()).x(); };
        QCOMPARE(left("name"), left("interval"));
        QCOMPARE(left("name"), left("color"));
        for (const QLabel* label : o.sheet.findChildren<QLabel*>()) {
            if (label->text() == QStringLiteral("Intervallo Tagliando"))
                QCOMPARE(label->width(), 140);
        }
    }

    void nothingIsCutOff_data()
    {
        QTest::addColumn<bool>("larger");
        QTest::newRow("usual text") << false;
        QTest::newRow("larger text") << true;
    }
    void nothingIsCutOff()
    {
        QFETCH(bool, larger);
        const auto check = [] {
            ScreenFixture f;
            EquipmentTypeModel type = boa();
            type.name = QStringLiteral("Dispositivo di segnalazione di superficie");
            type.serviceIntervalDays = 1234567;
            for (const auto& edited : {newType, std::optional(type)}) {
                Form o(f.context, edited);
                QCoreApplication::processEvents();
                QCOMPARE(clippedTexts(o.sheet).join(QLatin1Char('|')), QString());
                QVERIFY(o.sheet.width() < 1000 && o.sheet.height() < 700);
                const QScrollArea* area = o.sheet.scrollArea();
                QVERIFY(area->widget()->width() <= area->viewport()->width());
                auto& interval = o.driver.part<Stepper>("interval");
                QVERIFY(interval.width() >= interval.sizeHint().width());
            }
        };
        if (larger)
            withLargerText(check);
        else
            check();
    }
};

ABISSORA_TEST(tst_EquipmentTypeFormView);

#include "tst_EquipmentTypeFormView.moc"
