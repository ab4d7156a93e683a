// SPDX-License-Identifier: MIT
#include "EquipmentTypeFormView.h"
#include "Literals.h"
#include "ScrollPane.h"

#include "Buttons.h"
#include "ClippedTexts.h"
#include "ColorChoice.h"
#include "SearchField.h"
#include "Stepper.h"
#include "TestRunner.h"
#include "Theme.h"
#include "TypesParts.h"

#include <QAccessible>
#include <QScrollArea>
#include <QScrollBar>
#include <utility>

using namespace abissora;
using namespace abissora::test;

class tst_EquipmentTypeFormView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void textsOfANewType()
    {
        RegisterFixture f;
        TypeForm o(f, newType);
        QCOMPARE(o.sheet.windowTitle(), u"Nuova Tipologia"_s);
        QCOMPARE(o.sheet.windowModality(), Qt::WindowModal);
        const QStringList texts = visibleLabels(o.sheet);
        for (const char* text :
             {"Informazioni Base", "Nome Tipologia*", "* Campo obbligatorio", "Inserisci un nome valido",
              "Intervallo Tagliando", "Blu", "Selezione Icona", "Anteprima", "365 giorni"})
            QVERIFY2(texts.contains(QString::fromUtf8(text)), text);
        QCOMPARE(usable<QLineEdit>(o.sheet, "name").placeholderText(), u"Inserisci il nome"_s);
        QCOMPARE(o.sheet.cancelButton()->text(), u"Annulla"_s);
        QCOMPARE(o.sheet.primaryButton()->text(), u"Salva"_s);
        QCOMPARE(usable<Stepper>(o.sheet, "interval").text(), u"365 giorni"_s);
        QCOMPARE(usable<ColorChoice>(o.sheet, "color").selectedColor(), AvailableColors::blue);
        QVERIFY(cell(o, DivingIcons::regulator).isChecked());
        QVERIFY(usable<QLineEdit>(o.sheet, "name").hasFocus());
    }

    void textsOfAnEditedType()
    {
        RegisterFixture f;
        TypeForm o(f, std::optional(boa()));
        QCOMPARE(o.sheet.windowTitle(), u"Modifica Tipologia"_s);
        QCOMPARE(usable<QLineEdit>(o.sheet, "name").text(), u"Boa segnasub"_s);
        QCOMPARE(usable<ColorChoice>(o.sheet, "color").selectedColor(), AvailableColors::orange);
        QVERIFY(cell(o, DivingIcons::compass).isChecked());
        QVERIFY(!isShown(o.sheet, "invalidName"));
        QCOMPARE(textOf(o.sheet, "previewName"), u"Boa segnasub"_s);
    }

    void nothingJumpsWhileANameIsTyped()
    {
        RegisterFixture f;
        TypeForm o(f, newType);
        const QPoint before = usable<Stepper>(o.sheet, "interval").mapTo(&o.sheet, QPoint());
        type(o.sheet, "name", u"Boa"_s);
        settle();
        QCOMPARE(usable<Stepper>(o.sheet, "interval").mapTo(&o.sheet, QPoint()), before);
    }

    void thePreviewIsLive()
    {
        RegisterFixture f;
        TypeForm o(f, newType);
        const auto picture = [&o] { return usable(o.sheet, "previewTile").grab().toImage(); };
        QImage last = picture();
        const auto changed = [&] { return std::exchange(last, picture()) != last; };
        type(o.sheet, "name", u"Boa"_s);
        QCOMPARE(textOf(o.sheet, "previewName"), u"Boa"_s);
        QVERIFY(!changed());
        QTest::mouseClick(&usable<QAbstractButton>(o.sheet, "red"), Qt::LeftButton);
        QVERIFY(changed());
        QTest::mouseClick(&cell(o, DivingIcons::compass), Qt::LeftButton);
        QVERIFY(changed());
        auto& interval = usable<Stepper>(o.sheet, "interval");
        interval.setFocus();
        QTest::keyClick(&interval, Qt::Key_End);
        QCOMPARE(textOf(o.sheet, "previewInterval"), u"730 giorni"_s);
        applyTheme(*qApp, Scheme::Dark);
        QVERIFY(changed());
        applyTheme(*qApp, Scheme::Light);
    }

    void thePreviewStaysInSight()
    {
        RegisterFixture f;
        TypeForm o(f, newType);
        o.sheet.scrollArea()->verticalScrollBar()->setValue(o.sheet.scrollArea()->verticalScrollBar()->maximum());
        settle();
        const QWidget* preview = part(o.sheet, "previewTile").parentWidget();
        QCOMPARE(preview->visibleRegion().boundingRect(), preview->rect());
        o.sheet.scrollArea()->verticalScrollBar()->setValue(0);
        QCOMPARE(preview->visibleRegion().boundingRect(), preview->rect());
    }

    void escapeClearsTheSearchFirst()
    {
        RegisterFixture f;
        TypeForm o(f, newType);
        type(o.sheet, "iconSearch", u"bomb"_s);
        QTest::keyClick(&usable<SearchField>(o.sheet, "iconSearch"), Qt::Key_Escape);
        QVERIFY(o.sheet.isVisible());
        QTest::keyClick(&usable<SearchField>(o.sheet, "iconSearch"), Qt::Key_Escape);
        QVERIFY(!o.sheet.isVisible());
    }

    void tabFollowsTheReadingOrder()
    {
        RegisterFixture f;
        TypeForm o(f, std::optional(boa()));
        QCOMPARE(tabOrder(o.sheet).join(u' '), u"name interval orange iconSearch dive.compass cancel primary"_s);
    }

    void theKeyboardBringsIconsIntoSight()
    {
        RegisterFixture f;
        TypeForm o(f, newType);
        cell(o, DivingIcons::regulator).setFocus(Qt::TabFocusReason);
        for (const auto& [key, icon] :
             {std::pair(Qt::Key_End, DivingIcons::spareParts), std::pair(Qt::Key_Home, DivingIcons::diveLight)}) {
            QTest::keyClick(o.sheet.focusWidget(), key);
            settle();
            QVERIFY(cell(o, icon).hasFocus());
            QCOMPARE(cell(o, icon).visibleRegion().boundingRect(), cell(o, icon).rect());
        }
    }

    void fieldsAreNamedByTheirLabels()
    {
        RegisterFixture f;
        TypeForm o(f, newType);
        type(o.sheet, "name", u"Boa"_s);
        const QList<QPair<const char*, QString>> names{
            {"name", u"Nome Tipologia*"_s}, {"interval", u"Intervallo Tagliando"_s},
            {"color", u"Colore"_s},         {"iconSearch", u"Cerca icona..."_s},
            {"cancel", u"Annulla"_s},       {"primary", u"Salva"_s},
        };
        for (const auto& [part, name] : names) {
            QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&usable(o.sheet, part));
            QCOMPARE(accessible->text(QAccessible::Name), name);
        }
    }

    void theLabelsAreAsWideAsDrawn()
    {
        RegisterFixture f;
        TypeForm o(f, newType);
        const auto left = [&o](const char* part) { return usable(o.sheet, part).mapTo(&o.sheet, QPoint()).x(); };
        QCOMPARE(left("name"), left("interval"));
        QCOMPARE(left("name"), left("color"));
        for (const QLabel* label : o.sheet.findChildren<QLabel*>()) {
            if (label->text() == u"Intervallo Tagliando"_s)
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
            RegisterFixture f;
            EquipmentTypeModel type = boa();
            type.name = u"Dispositivo di segnalazione di superficie"_s;
            type.serviceIntervalDays = 1234567;
            for (const auto& edited : {newType, std::optional(type)}) {
                TypeForm o(f, edited);
                settle();
                QCOMPARE(clippedTexts(o.sheet).join(u'|'), QString());
                QVERIFY(o.sheet.width() < 1000 && o.sheet.height() < 700);
                const QScrollArea* area = o.sheet.scrollArea();
                QVERIFY(area->widget()->width() <= area->viewport()->width());
                auto& interval = usable<Stepper>(o.sheet, "interval");
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
