// SPDX-License-Identifier: MIT
#include "Announcements.h"
#include "ClippedTexts.h"
#include "ComponentTest.h"
#include "FormRow.h"
#include "Literals.h"
#include "ScaledText.h"
#include "Stepper.h"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

using namespace abissora;

class tst_FormRow : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void theLabelNamesTheField();
    void fieldsOfAFormStandInOneColumn();
    void aShortFieldKeepsItsWidth();
    void aHintStandsBelowTheField();
    void theErrorOfAFieldStandsBelowIt();
    void largerTextFits();
};

void tst_FormRow::theLabelNamesTheField()
{
    auto* const line = new QLineEdit;
    const FormRow row(u"Nome*"_s, line);
    QCOMPARE(nameOf(*line), u"Nome*"_s);
    auto* const stepper = new Stepper;
    const FormRow other(u"Giorni & mesi"_s, stepper);
    QCOMPARE(nameOf(*stepper), u"Giorni & mesi"_s);
}

void tst_FormRow::fieldsOfAFormStandInOneColumn()
{
    QWidget form;
    auto* const layout = new QVBoxLayout(&form);
    auto* const first = new QLineEdit;
    auto* const second = new QLineEdit;
    layout->addWidget(new FormRow(u"Nome*"_s, first));
    layout->addWidget(new FormRow(u"Numero Seriale"_s, second));
    form.resize(520, 120);
    test::activate(form);
    const auto left = [&](const QWidget* field) { return field->mapTo(&form, QPoint()).x(); };
    QCOMPARE(left(first), left(second));
    QCOMPARE(first->width(), second->width());
}

void tst_FormRow::aShortFieldKeepsItsWidth()
{
    auto* const line = new QLineEdit;
    line->setFixedWidth(170);
    FormRow row(u"Data Acquisto"_s, line);
    row.resize(520, 30);
    test::activate(row);
    QCOMPARE(line->width(), 170);
    QVERIFY(line->x() < 200);
}

void tst_FormRow::aHintStandsBelowTheField()
{
    auto* const line = new QLineEdit;
    FormRow row(u"Nome*"_s, line);
    row.setHint(u"* Campo obbligatorio"_s);
    row.resize(520, row.sizeHint().height());
    test::activate(row);
    const QLabel* const hint = row.findChildren<QLabel*>().constLast();
    QVERIFY(hint->y() > line->geometry().bottom());
    QCOMPARE(hint->x(), line->x());
}

void tst_FormRow::theErrorOfAFieldStandsBelowIt()
{
    class Field final : public CheckedField
    {
    public:
        bool commit() override
        {
            setError(text());
            return text().isEmpty();
        }
    };
    auto* const field = new Field;
    FormRow row(u"Data"_s, field);
    row.resize(520, 30);
    test::activate(row);
    const int height = row.sizeHint().height();
    const test::Announcements heard;
    field->setText(u"Data non valida"_s);
    QVERIFY(!field->commit());
    QTRY_VERIFY(row.sizeHint().height() > height);
    row.resize(520, row.sizeHint().height());
    auto* const error = row.findChild<QLabel*>(u"error"_s);
    QVERIFY(error && error->isVisible());
    QCOMPARE(error->text(), u"Data non valida"_s);
    QCOMPARE(heard.texts(), QStringList{u"Data non valida"_s});
    QCOMPARE(error->x(), field->x());
    QVERIFY(error->y() > field->geometry().bottom());
    QCOMPARE(test::clippedTexts(row), QStringList());
    field->clear();
    QVERIFY(field->commit());
    QVERIFY(!error->isVisible());
}

void tst_FormRow::largerTextFits()
{
    const test::ScaledText larger(1.25);
    FormRow row(u"Intervallo Tagliando"_s, new QLineEdit);
    row.resize(420, row.sizeHint().height());
    test::activate(row);
    QCOMPARE(test::clippedTexts(row), QStringList());
}

ABISSORA_TEST(tst_FormRow);
#include "tst_FormRow.moc"
