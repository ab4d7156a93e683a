// SPDX-License-Identifier: MIT
#include "ComponentTest.h"
#include "FormRow.h"
#include "Literals.h"
#include "OneLine.h"
#include "SearchField.h"

#include <QClipboard>
#include <QSignalSpy>

using namespace abissora;

class tst_OneLine : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void pastedLineBreaksBecomeBlanks_data();
    void pastedLineBreaksBecomeBlanks();
    void theCursorStaysBehindWhatWasPasted();
    void listenersHearTheOneLineOnly();
    void whatIsStoredStaysUntilItIsEdited();
    void searchAndCheckedFieldsAreOfOneLine();
};

void tst_OneLine::pastedLineBreaksBecomeBlanks_data()
{
    QTest::addColumn<QString>("pasted");
    QTest::newRow("one") << u"Erogatore\nApeks"_s;
    QTest::newRow("Windows") << u"Erogatore\r\nApeks"_s;
    QTest::newRow("old") << u"Erogatore\rApeks"_s;
    QTest::newRow("paragraph") << u"Erogatore\u2029Apeks"_s;
    QTest::newRow("line") << u"Erogatore\u2028Apeks"_s;
}

void tst_OneLine::pastedLineBreaksBecomeBlanks()
{
    QFETCH(QString, pasted);
    QLineEdit field;
    keepOneLine(field);
    QApplication::clipboard()->setText(pasted);
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(field.text(), u"Erogatore Apeks"_s);
}

void tst_OneLine::theCursorStaysBehindWhatWasPasted()
{
    QLineEdit field;
    keepOneLine(field);
    field.setText(u"A Z"_s);
    field.setCursorPosition(1);
    QApplication::clipboard()->setText(u"\r\nB\r\nC"_s);
    field.paste();
    QTest::keyClicks(&field, u"!"_s);
    QCOMPARE(field.text(), u"A B C! Z"_s);
}

void tst_OneLine::listenersHearTheOneLineOnly()
{
    QLineEdit field;
    keepOneLine(field);
    const QSignalSpy changed(&field, &QLineEdit::textChanged);
    const QSignalSpy edited(&field, &QLineEdit::textEdited);
    QApplication::clipboard()->setText(u"a\nb"_s);
    field.paste();
    for (const QSignalSpy* spy : {&changed, &edited}) {
        QCOMPARE(spy->size(), 1);
        QCOMPARE(spy->first().first().toString(), u"a b"_s);
    }
}

void tst_OneLine::whatIsStoredStaysUntilItIsEdited()
{
    QLineEdit field;
    keepOneLine(field);
    setStoredText(field, u"due\nrighe"_s);
    QCOMPARE(field.text(), u"due\nrighe"_s);
    QTest::keyClicks(&field, u"!"_s);
    QCOMPARE(field.text(), u"due righe!"_s);
}

void tst_OneLine::searchAndCheckedFieldsAreOfOneLine()
{
    class Checked final : public CheckedField
    {
    public:
        bool commit() override { return true; }
    };
    SearchField search(u"Cerca..."_s);
    Checked checked;
    QApplication::clipboard()->setText(u"a\nb"_s);
    for (QLineEdit* field : std::initializer_list<QLineEdit*>{&search, &checked}) {
        field->paste();
        QCOMPARE(field->text(), u"a b"_s);
    }
}

ABISSORA_TEST(tst_OneLine);
#include "tst_OneLine.moc"
