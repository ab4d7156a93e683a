// SPDX-License-Identifier: MIT
#include "IconPicker.h"
#include "Literals.h"

#include "Gui.h"
#include "SearchField.h"
#include "TestRunner.h"
#include "Theme.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

using namespace abissora;

namespace {

struct ShownIcons
{
    ShownIcons()
    {
        picker.resize(556, 900);
        test::activate(picker);
    }

    SearchField& search() { return *picker.findChild<SearchField*>(u"iconSearch"_s); }
    DivingIconButton& cell(DivingIcons icon) { return *picker.findChild<DivingIconButton*>(rawValue(icon)); }
    bool saysNothing() { return picker.findChild<QLabel*>(u"noIcon"_s)->isVisible(); }

    /// Titles and cells as they stand, from the top left to the bottom right.
    QStringList shown()
    {
        QList<QWidget*> parts;
        for (QWidget* part : picker.grid().findChildren<QWidget*>()) {
            if (part->isVisible())
                parts.append(part);
        }
        std::sort(parts.begin(), parts.end(), [](const QWidget* a, const QWidget* b) {
            return a->y() != b->y() ? a->y() < b->y() : a->x() < b->x();
        });
        QStringList texts;
        for (const QWidget* part : parts) {
            const auto* title = qobject_cast<const QLabel*>(part);
            texts.append(title != nullptr ? title->text().toUpper() : part->accessibleName());
        }
        return texts;
    }

    void type(const QString& text)
    {
        search().setFocus();
        QTest::keyClicks(&search(), text);
    }

    void press(Qt::Key key) { QTest::keyClick(picker.focusWidget(), key); }
    QString focused() { return picker.focusWidget()->accessibleName(); }

    IconPicker picker;
};

QStringList split(const char* texts)
{
    return QString::fromUtf8(texts).split(u',');
}

} // namespace

class tst_IconPicker : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void sectionsInOrder()
    {
        ShownIcons s;
        QCOMPARE(s.picker.title(), u"Selezione Icona"_s);
        QCOMPARE(s.search().placeholderText(), u"Cerca icona..."_s);
        QCOMPARE(s.shown(),
                 split("ACCESSORI,Torcia,Bussola,Profondimetro,Manometro,Coltello,Bozzello,Sacco Sollevamento,"
                       "Cintura Zavorra,ALTRO,Altro,Accessorio,Personalizzato,ATTREZZATURA PRINCIPALE,Erogatore,GAV,"
                       "Bombola,Maschera,Pinne,Muta,Muta Stagna,Computer Sub,COMUNICAZIONE,Comunicatore,Campana Sub,"
                       "MANUTENZIONE,Manutenzione,Pulizia,Test,Riparazione,Ispezione,Calibrazione,SICUREZZA,"
                       "Salvagente,Pronto Soccorso,Ossigeno,Fischietto,Bandiera Sub,TIPI DI IMMERSIONE,Subacquea,"
                       "Apnea,Snorkeling,Tecnica,Grotta,Relitto,Notturna,Profonda,VARIE,Fotocamera Sub,Action Cam,"
                       "Borsa Sub,Borsa Pinne,Kit Riparazione,Ricambi"));
    }

    void cellsOfAColumnStandBelowOneAnother()
    {
        ShownIcons s;
        QCOMPARE(s.cell(DivingIcons::regulator).x(), s.cell(DivingIcons::camera).x());
        QCOMPARE(s.cell(DivingIcons::regulator).width(), s.cell(DivingIcons::camera).width());
        QCOMPARE(s.cell(DivingIcons::diveComputer).geometry().right(), s.picker.grid().width() - 1);
    }

    void screenReadersFindEveryIcon()
    {
        ShownIcons s;
        s.picker.grid().setSelectedIcon(DivingIcons::compass);
        for (const DivingIcons icon : allCases<DivingIcons>()) {
            QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&s.cell(icon));
            QCOMPARE(accessible->role(), QAccessible::RadioButton);
            QCOMPARE(accessible->text(QAccessible::Name), displayName(icon));
            QCOMPARE(accessible->text(QAccessible::Description), category(icon));
            QCOMPARE(bool(accessible->state().checked), icon == DivingIcons::compass);
            QCOMPARE(s.cell(icon).toolTip(), displayName(icon));
        }
        QAccessible::queryAccessibleInterface(&s.cell(DivingIcons::cave))
            ->actionInterface()
            ->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(s.picker.grid().selectedIcon(), DivingIcons::cave);
        QAccessibleInterface* group = QAccessible::queryAccessibleInterface(&s.picker.grid());
        QCOMPARE(group->role(), QAccessible::Grouping);
        QCOMPARE(group->text(QAccessible::Name), u"Selezione Icona"_s);
    }

    void settingEmitsNothing()
    {
        ShownIcons s;
        const QSignalSpy chosen(&s.picker.grid(), &IconGrid::chosen);
        QVERIFY(s.cell(DivingIcons::regulator).isChecked());
        s.picker.grid().setSelectedIcon(DivingIcons::custom);
        QCOMPARE(s.picker.grid().selectedIcon(), DivingIcons::custom);
        QVERIFY(s.cell(DivingIcons::custom).isChecked());
        QVERIFY(!s.cell(DivingIcons::regulator).isChecked());
        QCOMPARE(chosen.size(), 0);
    }

    void aChoiceEmitsOnce()
    {
        ShownIcons s;
        const QSignalSpy chosen(&s.picker.grid(), &IconGrid::chosen);
        QTest::mouseClick(&s.cell(DivingIcons::tank), Qt::LeftButton);
        QTest::mouseClick(&s.cell(DivingIcons::tank), Qt::LeftButton);
        QCOMPARE(chosen.size(), 1);
        QCOMPARE(chosen.first().first().value<DivingIcons>(), DivingIcons::tank);
        QVERIFY(s.cell(DivingIcons::tank).isChecked());
    }

    void spaceAndReturnChoose()
    {
        ShownIcons s;
        const QSignalSpy chosen(&s.picker.grid(), &IconGrid::chosen);
        s.cell(DivingIcons::regulator).setFocus(Qt::TabFocusReason);
        s.press(Qt::Key_Right);
        QCOMPARE(s.picker.grid().selectedIcon(), DivingIcons::regulator); // moving is not choosing
        s.press(Qt::Key_Space);
        QCOMPARE(s.picker.grid().selectedIcon(), DivingIcons::bcd);
        s.press(Qt::Key_Right);
        s.press(Qt::Key_Return);
        QCOMPARE(s.picker.grid().selectedIcon(), DivingIcons::tank);
        QCOMPARE(chosen.size(), 2);
    }

    void arrowsCrossTheSections()
    {
        ShownIcons s;
        s.cell(DivingIcons::diveKnife).setFocus(Qt::TabFocusReason); // fifth of the first section
        QStringList visited{s.focused()};
        for (int i = 0; i < 7; ++i) {
            s.press(Qt::Key_Down);
            visited.append(s.focused());
        }
        QCOMPARE(visited, split("Coltello,Personalizzato,Pinne,Campana Sub,Ispezione,Bandiera Sub,Grotta,"
                                "Kit Riparazione"));
        s.press(Qt::Key_Home);
        QCOMPARE(s.focused(), u"Torcia"_s);
        s.press(Qt::Key_End);
        QCOMPARE(s.focused(), u"Ricambi"_s);
    }

    void oneTabStopAtTheChosenIcon()
    {
        ShownIcons s;
        s.picker.grid().setSelectedIcon(DivingIcons::scuba);
        s.search().setFocus();
        s.press(Qt::Key_Tab);
        QCOMPARE(s.focused(), u"Subacquea"_s);
        s.press(Qt::Key_Right);
        s.press(Qt::Key_Tab);
        QCOMPARE(s.picker.focusWidget(), &s.search());
    }

    void searching()
    {
        ShownIcons s;
        const int before = s.picker.grid().height();
        s.type(u"bombola"_s);
        QCOMPARE(s.shown(), split("ATTREZZATURA PRINCIPALE,Bombola"));
        QVERIFY(s.picker.grid().sizeHint().height() < before);
        QVERIFY(!s.saysNothing());
        s.press(Qt::Key_Tab);
        QCOMPARE(s.focused(), u"Bombola"_s);
        s.search().selectAll();
        s.type(u"dive.k"_s);
        QCOMPARE(s.shown(), split("ACCESSORI,Coltello"));
        s.search().selectAll();
        s.type(u"sub"_s);
        QCOMPARE(s.shown(), split("ATTREZZATURA PRINCIPALE,Computer Sub,COMUNICAZIONE,Campana Sub,SICUREZZA,"
                                  "Bandiera Sub,TIPI DI IMMERSIONE,Subacquea,VARIE,Fotocamera Sub,Borsa Sub"));
        s.press(Qt::Key_Tab);
        s.press(Qt::Key_End);
        s.press(Qt::Key_Up);
        QCOMPARE(s.focused(), u"Subacquea"_s);
    }

    void theChoiceOutlivesTheSearch()
    {
        ShownIcons s;
        s.picker.grid().setSelectedIcon(DivingIcons::reel);
        s.type(u"bombola"_s);
        QCOMPARE(s.picker.grid().selectedIcon(), DivingIcons::reel);
        QTest::keyClick(&s.search(), Qt::Key_Escape);
        QVERIFY(s.cell(DivingIcons::reel).isVisible() && s.cell(DivingIcons::reel).isChecked());
        s.press(Qt::Key_Tab);
        QCOMPARE(s.focused(), u"Bozzello"_s);
    }

    void choosingWhatWasFound()
    {
        ShownIcons s;
        s.type(u"knife"_s);
        QTest::mouseClick(&s.cell(DivingIcons::diveKnife), Qt::LeftButton);
        QCOMPARE(s.picker.grid().selectedIcon(), DivingIcons::diveKnife);
        QVERIFY(!s.cell(DivingIcons::regulator).isChecked());
    }

    void nothingFound()
    {
        ShownIcons s;
        s.type(u"xyz"_s);
        QVERIFY(s.saysNothing());
        QVERIFY(!s.picker.grid().isVisible());
        const QLabel* nothing = s.picker.findChild<QLabel*>(u"noIcon"_s);
        QCOMPARE(nothing->text(), u"Nessuna icona trovata"_s);
        s.search().findChild<QAction*>(u"clear"_s)->trigger();
        QVERIFY(!s.saysNothing());
        QCOMPARE(s.shown().size(), 54);
        QCOMPARE(s.search().text(), QString());
    }

    void theSchemeIsFollowed()
    {
        ShownIcons s;
        const QImage light = s.cell(DivingIcons::tank).grab().toImage();
        applyTheme(*qApp, Scheme::Dark);
        QVERIFY(s.cell(DivingIcons::tank).grab().toImage() != light);
        applyTheme(*qApp, Scheme::Light);
        QCOMPARE(s.cell(DivingIcons::tank).grab().toImage(), light);
    }
};

ABISSORA_TEST(tst_IconPicker);

#include "tst_IconPicker.moc"
