// SPDX-License-Identifier: MIT
#include "ColorChoice.h"
#include "Gui.h"
#include "Literals.h"
#include "TestRunner.h"
#include "Theme.h"
#include "Tokens.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

using namespace abissora;

namespace {

struct ShownColors
{
    ShownColors()
    {
        choice.resize(372, choice.heightForWidth(372));
        test::activate(choice);
    }

    QRadioButton& swatch(AvailableColors color) { return *choice.findChild<QRadioButton*>(caseName(color)); }
    QString label() { return choice.findChild<QLabel*>(u"colorLabel"_s)->text(); }

    ColorChoice choice;
};

} // namespace

class tst_ColorChoice : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void thirteenColoursByTheirLabels()
    {
        ShownColors s;
        QStringList labels;
        for (QRadioButton* swatch : s.choice.findChildren<QRadioButton*>()) {
            QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(swatch);
            QCOMPARE(accessible->role(), QAccessible::RadioButton);
            QCOMPARE(swatch->toolTip(), accessible->text(QAccessible::Name));
            labels.append(accessible->text(QAccessible::Name));
        }
        QCOMPARE(labels.join(u','), u"Blu,Rosso,Verde,Arancione,Viola,Grigio,Ciano,Indaco,"
                                    "Rosa,Giallo,Verde Acqua,Menta,Marrone"_s);
        QAccessibleInterface* group = QAccessible::queryAccessibleInterface(&s.choice);
        QCOMPARE(group->role(), QAccessible::Grouping);
        QCOMPARE(group->text(QAccessible::Name), u"Colore"_s);
    }

    void settingEmitsNothing()
    {
        ShownColors s;
        const QSignalSpy chosen(&s.choice, &ColorChoice::chosen);
        s.choice.setSelectedColor(AvailableColors::teal);
        QCOMPARE(s.choice.selectedColor(), AvailableColors::teal);
        QVERIFY(s.swatch(AvailableColors::teal).isChecked());
        QVERIFY(!s.swatch(AvailableColors::blue).isChecked());
        QCOMPARE(s.label(), u"Verde Acqua"_s);
        QCOMPARE(chosen.size(), 0);
    }

    void aClickEmitsOnce()
    {
        ShownColors s;
        const QSignalSpy chosen(&s.choice, &ColorChoice::chosen);
        QTest::mouseClick(&s.swatch(AvailableColors::brown), Qt::LeftButton);
        QTest::mouseClick(&s.swatch(AvailableColors::brown), Qt::LeftButton);
        QCOMPARE(chosen.size(), 1);
        QCOMPARE(chosen.first().first().value<AvailableColors>(), AvailableColors::brown);
        QCOMPARE(s.choice.selectedColor(), AvailableColors::brown);
        QCOMPARE(s.label(), u"Marrone"_s);
    }

    void everyPixelOfASwatchAnswers()
    {
        ShownColors s;
        QRadioButton& swatch = s.swatch(AvailableColors::pink);
        QTest::mouseClick(&swatch, Qt::LeftButton, {}, swatch.rect().bottomRight());
        QCOMPARE(s.choice.selectedColor(), AvailableColors::pink);
    }

    void arrowKeysMoveTheChoice()
    {
        ShownColors s;
        s.swatch(AvailableColors::blue).setFocus(Qt::TabFocusReason);
        const QSignalSpy chosen(&s.choice, &ColorChoice::chosen);
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(s.choice.focusWidget(), Qt::Key_Right);
        QCOMPARE(s.choice.selectedColor(), AvailableColors::orange);
        QTest::keyClick(s.choice.focusWidget(), Qt::Key_Left);
        QCOMPARE(s.choice.selectedColor(), AvailableColors::green);
        QCOMPARE(chosen.size(), 4);
        QCOMPARE(s.choice.focusWidget(), &s.swatch(AvailableColors::green));
    }

    void arrowKeysReachEveryColour_data()
    {
        QTest::addColumn<int>("width");
        QTest::newRow("one line") << 372;
        QTest::newRow("two lines") << 300;
        QTest::newRow("three lines") << 150;
    }
    void arrowKeysReachEveryColour()
    {
        QFETCH(int, width);
        ShownColors s;
        s.choice.resize(width, s.choice.heightForWidth(width));
        test::settle();
        s.swatch(AvailableColors::blue).setFocus(Qt::TabFocusReason);
        QList<AvailableColors> visited{s.choice.selectedColor()};
        for (int i = 0; i < 12; ++i) {
            QTest::keyClick(s.choice.focusWidget(), Qt::Key_Right);
            visited.append(s.choice.selectedColor());
        }
        const auto all = allCases<AvailableColors>();
        QCOMPARE(visited, QList<AvailableColors>(all.begin(), all.end()));
        for (int i = 0; i < 12; ++i)
            QTest::keyClick(s.choice.focusWidget(), Qt::Key_Left);
        QCOMPARE(s.choice.selectedColor(), AvailableColors::blue);
    }

    void tabStopsAtTheChosenOneOnly()
    {
        ShownColors s;
        s.choice.setSelectedColor(AvailableColors::indigo);
        QStringList stops;
        for (const QRadioButton* swatch : s.choice.findChildren<QRadioButton*>()) {
            if (swatch->focusPolicy() & Qt::TabFocus)
                stops.append(swatch->text());
        }
        QCOMPARE(stops, QStringList(u"Indaco"_s));
    }

    void theChosenOneLooksDifferent()
    {
        for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
            applyTheme(*qApp, scheme);
            ShownColors s;
            for (const AvailableColors color : allCases<AvailableColors>()) {
                s.choice.setSelectedColor(color == AvailableColors::blue ? AvailableColors::red
                                                                         : AvailableColors::blue);
                s.swatch(color).setAttribute(Qt::WA_UnderMouse, false);
                const QImage other = s.swatch(color).grab().toImage();
                QCOMPARE(other.pixelColor(other.rect().center()).rgb(),
                         Tokens::of(scheme).named(colorValue(color)).rgb());
                s.choice.setSelectedColor(color);
                QVERIFY2(s.swatch(color).grab().toImage() != other, qPrintable(caseName(color)));
            }
        }
        applyTheme(*qApp, Scheme::Light);
    }

    void noColourStandsAlone()
    {
        ShownColors s;
        for (const int width : {260, 400, 900}) {
            s.choice.resize(width, s.choice.sizeHint().height());
            test::settle();
            QMap<int, int> inRow;
            for (const AvailableColors color : allCases<AvailableColors>())
                ++inRow[s.swatch(color).y()];
            QCOMPARE(inRow.values(), (QList<int>{7, 6}));
        }
    }
};

ABISSORA_TEST(tst_ColorChoice);

#include "tst_ColorChoice.moc"
