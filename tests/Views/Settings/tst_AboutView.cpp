// SPDX-License-Identifier: MIT
#include "AboutView.h"
#include "ClippedTexts.h"
#include "Gui.h"
#include "Literals.h"
#include "ProgramFacts.h"
#include "RegisterFixture.h"
#include "ScaledText.h"
#include "SettingsGroupBox.h"
#include "TestRunner.h"
#include "Theme.h"

#include <QAccessible>
#include <QApplication>
#include <QSignalSpy>

using namespace abissora;

class tst_AboutView : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void saysWhatTheProgramIs()
    {
        test::RegisterFixture f;
        const ProgramFacts program{f.info, f.product};
        const AboutView view(program);
        QStringList texts;
        for (const QLabel* label : view.findChildren<QLabel*>())
            texts.append(label->text());
        QVERIFY(texts.contains(u"Abissora"_s));
        QVERIFY(texts.contains(u"Gestione attrezzatura subacquea e manutenzioni"_s));
        const QList<SettingsInfoRow*> rows = view.findChildren<SettingsInfoRow*>();
        QCOMPARE(rows.size(), 4);
        for (qsizetype i = 0; i < rows.size(); ++i) {
            QCOMPARE(rows.at(i)->label(), program.all().at(i).label);
            QCOMPARE(rows.at(i)->value(), program.all().at(i).value);
        }
    }

    void valuesCanBeSelectedByKeyboardAndAreNamed()
    {
        test::RegisterFixture f;
        AboutView view({f.info, f.product});
        test::activate(view);
        const QList<SettingsInfoRow*> rows = view.findChildren<SettingsInfoRow*>();
        rows.last()->findChildren<QLabel*>().last()->setFocus();
        for (const SettingsInfoRow* row : rows) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            auto* value = qobject_cast<QLabel*>(QApplication::focusWidget());
            QVERIFY(value != nullptr);
            QCOMPARE(value->text(), row->value());
            QCOMPARE(value->textFormat(), Qt::PlainText);
            value->setSelection(0, int(value->text().size()));
            QCOMPARE(value->selectedText(), row->value());
            const auto relations = QAccessible::queryAccessibleInterface(value)->relations(QAccessible::Label);
            QCOMPARE(relations.size(), 1);
            QCOMPARE(relations.first().first->text(QAccessible::Name), row->label());
        }
    }

    void nothingIsClipped()
    {
        for (const double factor : {1.0, 1.25}) {
            const test::ScaledText scaled(factor);
            test::RegisterFixture f;
            AboutView view({f.info, f.product});
            view.show();
            QVERIFY(QTest::qWaitForWindowExposed(&view));
            QCOMPARE(test::clippedTexts(view), QStringList());
        }
    }

    void theIconIsDrawnOnAShadowInBothSchemes()
    {
        for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
            applyTheme(*qApp, scheme);
            ShadowedIcon icon(96);
            icon.resize(icon.sizeHint());
            const QImage image = icon.grab().toImage();
            const QColor ground = icon.palette().color(QPalette::Window);
            QCOMPARE(image.pixelColor(0, 0), ground);
            QVERIFY(image.pixelColor(image.width() / 2, image.height() / 2) != ground);
            // Below the picture's lower edge.
            const QColor shadow = image.pixelColor(image.width() / 2, (image.height() + 96) / 2);
            QVERIFY(shadow != ground && shadow.lightness() < ground.lightness());
        }
        applyTheme(*qApp, Scheme::Light);
    }
};

ABISSORA_TEST(tst_AboutView);
#include "tst_AboutView.moc"
