// SPDX-License-Identifier: MIT
#include "FocusInSight.h"
#include "Literals.h"
#include "MaintenanceFormView.h"
#include "RegisterFixture.h"
#include "TestRunner.h"
#include "Theme.h"
#include "ToggleSwitch.h"

#include <QAccessible>
#include <QLineEdit>

using namespace abissora;
using namespace abissora::test;

namespace {

/// The form over a window of the size, with or without both documents.
struct FormForKeys
{
    explicit FormForKeys(QSize size = QSize(1000, 700), bool hasDocuments = false)
    {
        const Equipment item = makeItem(1, u"Articolo"_s, EquipmentType::regulator, f.inDays(100));
        f.equipment.addEquipment(item);
        below.resize(size);
        below.show();
        std::optional<Maintenance> record;
        if (hasDocuments) {
            record = maintenance(5);
            record->receiptFileName = f.storedDocument(u"scontrino.pdf"_s);
            record->certificateFileName = f.storedDocument(u"certificato.pdf"_s);
        }
        form = std::make_unique<MaintenanceFormView>(f.draft(item.id, record), f.opener, &below);
        form->open();
        activate(*form);
    }

    void pressAlt(Qt::Key key) const { QTest::keyClick(form->focusWidget(), key, Qt::AltModifier); }

    RegisterFixture f;
    QWidget below;
    std::unique_ptr<MaintenanceFormView> form;
};

} // namespace

class tst_MaintenanceFormKeys : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void whatHasTheFocusIsInSight_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<bool>("hasDocuments");
        for (const QSize size : {QSize(1000, 700), QSize(1280, 800)}) {
            QTest::addRow("%d, new", size.width()) << size << false;
            QTest::addRow("%d, with documents", size.width()) << size << true;
        }
    }

    void whatHasTheFocusIsInSight()
    {
        QFETCH(QSize, size);
        QFETCH(bool, hasDocuments);
        const FormForKeys s(size, hasDocuments);
        QCOMPARE(stopsOutOfSight(*s.form), QStringList());
        QCOMPARE(stopsOutOfSight(*s.form, true), QStringList());
        s.pressAlt(Qt::Key_T);
        QCOMPARE(s.form->focusWidget()->objectName(), u"notes"_s);
        for (int line = 0; line < 20; ++line) {
            QTest::keyClick(s.form->focusWidget(), Qt::Key_Return);
            QVERIFY(isFocusInSight(*s.form));
        }
    }

    void altAndALetterLeadToEachControl()
    {
        const FormForKeys s;
        for (const auto& [key, name] : {std::pair(Qt::Key_E, "performedBy"), std::pair(Qt::Key_C, "cost"),
                                        std::pair(Qt::Key_G, "nextServiceDate"), std::pair(Qt::Key_T, "notes"),
                                        std::pair(Qt::Key_D, "description")}) {
            s.pressAlt(key);
            QCOMPARE(s.form->focusWidget()->objectName(), QString::fromLatin1(name));
            QVERIFY(isFocusInSight(*s.form));
        }
        s.pressAlt(Qt::Key_M);
        QTRY_VERIFY(!part<ToggleSwitch>(*s.form, "isCompleted").isChecked());
        s.pressAlt(Qt::Key_A);
        QTRY_VERIFY(!s.form->isVisible());
    }

    void altAndALetterPressTheButtonsOfEachDocument()
    {
        const FormForKeys s(QSize(1000, 700), true);
        s.pressAlt(Qt::Key_V);
        QTRY_VERIFY(isShown(*s.form, "attachCertificato"));
        QVERIFY(!isShown(*s.form, "attachScontrino"));
        s.pressAlt(Qt::Key_R);
        QTRY_VERIFY(isShown(*s.form, "attachScontrino"));
    }

    void eachButtonSaysOfWhichDocumentItIs()
    {
        for (const bool hasDocuments : {false, true}) {
            const FormForKeys s(QSize(1000, 700), hasDocuments);
            for (const auto& document : {u"Scontrino"_s, u"Certificato"_s}) {
                for (const auto& verb : hasDocuments ? QStringList{u"open"_s, u"remove"_s} : QStringList{u"attach"_s}) {
                    QWidget& button = part(*s.form, verb + document);
                    const auto* reader = QAccessible::queryAccessibleInterface(&button);
                    QVERIFY(reader->text(QAccessible::Name).contains(document, Qt::CaseInsensitive));
                }
            }
        }
    }

    void eachPickerHasAName()
    {
        const FormForKeys s;
        QAccessibleInterface* picker = QAccessible::queryAccessibleInterface(&part(*s.form, "type"));
        QCOMPARE(picker->role(), QAccessible::ComboBox);
        QCOMPARE(picker->text(QAccessible::Name), u"Tipo: Manutenzione Annuale"_s);
        QCOMPARE(picker->text(QAccessible::Value), u"Manutenzione Annuale"_s);
    }
};

ABISSORA_TEST(tst_MaintenanceFormKeys);

#include "tst_MaintenanceFormKeys.moc"
