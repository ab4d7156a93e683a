// SPDX-License-Identifier: MIT
#include "ComponentTest.h"
#include "Literals.h"
#include "SearchField.h"

#include <QAction>
#include <QSignalSpy>
#include <QToolButton>

using namespace abissora;

class tst_SearchField : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyKeystrokeIsOneEdit();
    void theProgramsTextIsNoEdit();
    void theClearMarkEmptiesTheFieldOnce();
    void theClearMarkIsThereOnlyForAText();
    void escapeClearsAndThenGoesOn();
    void itIsReadAsAFieldWithAName();

private:
    static QToolButton* clearMark(const SearchField& field)
    {
        for (QToolButton* button : field.findChildren<QToolButton*>()) {
            if (button->defaultAction() == field.findChild<QAction*>(u"clear"_s))
                return button;
        }
        return nullptr;
    }
};

void tst_SearchField::everyKeystrokeIsOneEdit()
{
    SearchField field(u"Cerca attrezzatura..."_s);
    test::activate(field);
    field.setFocus();
    const QSignalSpy edited(&field, &QLineEdit::textEdited);
    QTest::keyClicks(&field, u"gav"_s);
    QCOMPARE(edited.size(), 3);
    QCOMPARE(edited.last().first().toString(), u"gav"_s);
}

void tst_SearchField::theProgramsTextIsNoEdit()
{
    SearchField field(u"Cerca"_s);
    const QSignalSpy edited(&field, &QLineEdit::textEdited);
    field.setText(u"gav"_s);
    field.setText({});
    QCOMPARE(edited.size(), 0);
}

void tst_SearchField::theClearMarkEmptiesTheFieldOnce()
{
    SearchField field(u"Cerca"_s);
    field.resize(240, field.sizeHint().height());
    field.setText(u"gav"_s);
    test::activate(field);
    const QSignalSpy edited(&field, &QLineEdit::textEdited);
    QToolButton* const mark = clearMark(field);
    QVERIFY(mark != nullptr);
    QTRY_VERIFY(mark->isVisible());
    QTest::mouseClick(mark, Qt::LeftButton);
    QCOMPARE(edited.size(), 1);
    QVERIFY(edited.first().first().toString().isEmpty());
    QVERIFY(field.text().isEmpty());
    QVERIFY(field.hasFocus());
}

void tst_SearchField::theClearMarkIsThereOnlyForAText()
{
    SearchField field(u"Cerca"_s);
    test::activate(field);
    QVERIFY(!clearMark(field)->isVisible());
    field.setText(u"gav"_s);
    QTRY_VERIFY(clearMark(field)->isVisible());
    field.setText({});
    QTRY_VERIFY(!clearMark(field)->isVisible());
}

void tst_SearchField::escapeClearsAndThenGoesOn()
{
    QWidget window;
    SearchField field(u"Cerca"_s, &window);
    field.setText(u"gav"_s);
    test::activate(window);
    field.setFocus();
    const QSignalSpy edited(&field, &QLineEdit::textEdited);
    QKeyEvent first(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&field, &first);
    QVERIFY(first.isAccepted());
    QCOMPARE(edited.size(), 1);
    QKeyEvent second(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&field, &second);
    QVERIFY2(!second.isAccepted(), "with nothing to clear, Escape belongs to the sheet around");
    QCOMPARE(edited.size(), 1);
}

void tst_SearchField::itIsReadAsAFieldWithAName()
{
    SearchField field(u"Cerca attrezzatura..."_s);
    QCOMPARE(roleOf(field), QAccessible::EditableText);
    QCOMPARE(nameOf(field), u"Cerca attrezzatura..."_s);
    QCOMPARE(nameOf(*clearMark(field)), u"Cancella la ricerca"_s);
    QCOMPARE(clearMark(field)->toolTip(), u"Cancella la ricerca"_s);
    for (QAbstractButton* button : field.findChildren<QAbstractButton*>())
        QVERIFY2(!nameOf(*button).isEmpty(), "a nameless button");
}

ABISSORA_TEST(tst_SearchField);
#include "tst_SearchField.moc"
