// SPDX-License-Identifier: MIT
#include "AccessKeys.h"
#include "Buttons.h"
#include "Cards.h"
#include "ComponentTest.h"
#include "FormRow.h"
#include "Literals.h"
#include "Sheet.h"
#include "ToggleSwitch.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QVBoxLayout>

using namespace abissora;

namespace {

/// A sheet with a field, a switch, notes and its two buttons.
struct KeyedSheet
{
    KeyedSheet()
    {
        window.resize(1000, 700);
        window.show();
        sheet = std::make_unique<Sheet>(u"Nuova"_s, &window);
        sheet->setPrimaryText(u"Salva"_s, u'S');
        setAccessKey(*active, u'V');
        auto* group = new GroupBox(u"Note"_s);
        group->setAccessKey(u'E', notes);
        group->content()->addWidget(notes);
        sheet->body()->addWidget(new FormRow(u"Nome & cognome*"_s, first));
        row = new FormRow(u"Marca*"_s, brand, u'M');
        sheet->body()->addWidget(row);
        sheet->body()->addWidget(active);
        sheet->body()->addWidget(group);
        sheet->open();
        test::activate(*sheet);
    }
    QImage picture() const { return sheet->grab().toImage(); }
    void press(Qt::Key key) const { QTest::keyClick(sheet->focusWidget(), key, Qt::AltModifier); }

    QWidget window;
    std::unique_ptr<Sheet> sheet;
    QLineEdit* first = new QLineEdit;
    QLineEdit* brand = new QLineEdit;
    ToggleSwitch* active = new ToggleSwitch(u"Attivo"_s);
    QPlainTextEdit* notes = new QPlainTextEdit;
    FormRow* row;
};

} // namespace

class tst_AccessKeys : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void leadToFields();
    void pressButtons();
    void leadNowhereOnceTheirRowIsHidden();
    void textsAndNamesHaveNoMarks();
    void areUnderlinedWhileAltIsHeld();
    void theMarkStandsBeforeTheLetter();
};

void tst_AccessKeys::leadToFields()
{
    KeyedSheet k;
    k.press(Qt::Key_M);
    QVERIFY(k.brand->hasFocus());
    k.press(Qt::Key_E);
    QVERIFY(k.notes->hasFocus());
    QVERIFY(k.notes->toPlainText().isEmpty());
    QCOMPARE(k.brand->text(), QString());
}

void tst_AccessKeys::pressButtons()
{
    KeyedSheet k;
    const QSignalSpy primary(k.sheet.get(), &Sheet::primaryClicked);
    k.press(Qt::Key_S);
    QTRY_COMPARE(primary.size(), 1);
    k.press(Qt::Key_V);
    QTRY_VERIFY(k.active->isChecked());
    k.press(Qt::Key_A);
    QTRY_VERIFY(!k.sheet->isVisible());
}

void tst_AccessKeys::leadNowhereOnceTheirRowIsHidden()
{
    KeyedSheet k;
    k.row->hide();
    k.press(Qt::Key_M);
    QVERIFY(k.first->hasFocus());
}

void tst_AccessKeys::textsAndNamesHaveNoMarks()
{
    KeyedSheet k;
    QCOMPARE(nameOf(*k.first), u"Nome & cognome*"_s);
    QCOMPARE(nameOf(*k.brand), u"Marca*"_s);
    QCOMPARE(nameOf(*k.active), u"Attivo"_s);
    QCOMPARE(nameOf(*k.sheet->primaryButton()), u"Salva"_s);
    QCOMPARE(k.sheet->primaryButton()->text(), u"Salva"_s);
    QAccessibleActionInterface* const action =
        QAccessible::queryAccessibleInterface(k.sheet->primaryButton())->actionInterface();
    QCOMPARE(action->keyBindingsForAction(QAccessibleActionInterface::pressAction()), QStringList{u"Alt+S"_s});
}

void tst_AccessKeys::areUnderlinedWhileAltIsHeld()
{
    KeyedSheet k;
    k.sheet->primaryButton()->setFocus(); // no cursor that blinks
    test::settle();
    const QImage before = k.picture();
    QTest::keyPress(k.sheet->focusWidget(), Qt::Key_Alt, Qt::AltModifier);
    const QImage held = k.picture();
    const auto differs = [&](const QWidget& widget) {
        const QRect place(widget.mapTo(k.sheet.get(), QPoint()), widget.size());
        return before.copy(place) != held.copy(place);
    };
    QVERIFY(differs(*k.row));
    QVERIFY(differs(*k.active));
    QVERIFY(differs(*k.sheet->primaryButton()));
    QVERIFY(differs(*k.sheet->cancelButton()));
    QVERIFY(!differs(*k.first));
    QVERIFY(!differs(*k.notes));
    QTest::keyRelease(k.sheet->focusWidget(), Qt::Key_Alt);
    QCOMPARE(k.picture(), before);
}

void tst_AccessKeys::theMarkStandsBeforeTheLetter()
{
    QWidget window;
    QCOMPARE(markedText(u"Sub & mare"_s, u'M', window), u"Sub && mare"_s);
    setAccessKeysShown(window, true);
    QCOMPARE(markedText(u"Sub & mare"_s, u'M', window), u"Sub && &mare"_s);
    QCOMPARE(markedText(u"Salva"_s, u'Z', window), u"Salva"_s);
    QCOMPARE(markedText(u"Salva"_s, {}, window), u"Salva"_s);
}

ABISSORA_TEST(tst_AccessKeys);
#include "tst_AccessKeys.moc"
