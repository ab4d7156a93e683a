// SPDX-License-Identifier: MIT
#include "ComponentTest.h"
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
            if (button->defaultAction() == field.findChild<QAction*>(QStringLiteral("clear")))
                return button;
        }
        return nullptr;
    }
};

void tst_SearchField::everyKeystrokeIsOneEdit()
{
    SearchField field(QStringLiteral("Cerca attrezzatura..."));
    activate(field);
    field.setFocus();
    const QSignalSpy edited(&field, &QLineEdit::textEdited);
    QTest::keyClicks(&field, QStringLiteral("gav"));
    QCOMPARE(edited.size(), 3);
    QCOMPARE(edited.last().first().toString(), QStringLiteral("gav"));
}

void tst_SearchField::theProgramsTextIsNoEdit()
{
    SearchField field(QStringLiteral("Cerca"));
    const QSignalSpy edited(&field, &QLineEdit::textEdited);
    field.setText(QStringLiteral("gav"));
    field.setText({});
    QCOMPARE(edited.size(), 0);
}

void tst_SearchField::theClearMarkEmptiesTheFieldOnce()
{
    SearchField field(QStringLiteral("Cerca"));
    field.resize(240, field.sizeHint().height());
    field.setText(QStringLiteral("gav"));
    activate(field);
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
    SearchField field(QStringLiteral("Cerca"));
    activate(field);
    QVERIFY(!clearMark(field)->isVisible());
    field.setText(QStringLiteral("gav"));
    QTRY_VERIFY(clearMark(field)->isVisible());
    field.setText({});
    QTRY_VERIFY(!clearMark(field)->isVisible());
}

void tst_SearchField::escapeClearsAndThenGoesOn()
{
    QWidget window;
    SearchField field(QStringLiteral("Cerca"), &window);
    field.setText(QStringLiteral("gav"));
    activate(window);
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
    SearchField field(QStringLiteral("Cerca attrezzatura..."));
    QCOMPARE(roleOf(field), QAccessible::EditableText);
    QCOMPARE(nameOf(field), QStringLiteral("Cerca attrezzatura..."));
    QCOMPARE(nameOf(*clearMark(field)), QStringLiteral("Cancella la ricerca"));
    QCOMPARE(clearMark(field)->toolTip(), QStringLiteral("Cancella la ricerca"));
}

ABISSORA_TEST(tst_SearchField);
#include "tst_SearchField.moc"
