// SPDX-License-Identifier: MIT
#include "ClippedTexts.h"
#include "DetailParts.h"
#include "DetailSections.h"
#include "Literals.h"
#include "ScaledText.h"
#include "TestRunner.h"

#include <QAccessible>
#include <QScrollArea>

using namespace abissora;
using namespace abissora::test;

/// Whether the detail screen can be reached, heard and read.
class tst_DetailReading : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everythingThatTakesTheFocusHasANameAndIsReachedByTab()
    {
        ShownDetail s(threeRecords());
        QStringList order;
        part(*s.view, u"closeDetail"_s).setFocus();
        for (int i = 0; i < 11; ++i) {
            QWidget* const focused = QApplication::focusWidget();
            QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(focused);
            QVERIFY2(!accessible->text(QAccessible::Name).isEmpty(), qPrintable(focused->objectName()));
            order.append(focused->objectName());
            QTest::keyClick(focused, Qt::Key_Tab);
        }
        QCOMPARE(order,
                 QStringList({u"closeDetail"_s, u"notes"_s, u"editEquipment"_s, u"addMaintenance"_s, u"toggleActive"_s,
                              u"deleteEquipment"_s, u"editMaintenance"_s, u"deleteMaintenance"_s, u"maintenanceMenu"_s,
                              u"uploadReceipt"_s, u"uploadCertificate"_s}));
    }

    void screenReadersAreToldWhatIsWhat()
    {
        ShownDetail s({makeRecord(1, 1, u"Prova"_s)}, 3);
        QStringList lines;
        for (const QLabel* label : part(*s.view, u"technicalDetails"_s).findChildren<QLabel*>()) {
            QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(const_cast<QLabel*>(label));
            if (label->buddy() != nullptr) {
                const auto relations = accessible->relations(QAccessible::Labelled);
                QCOMPARE(relations.size(), 1);
                lines.append(relations.first().first->text(QAccessible::Name));
            }
        }
        QCOMPARE(lines.size(), 6);
        QVERIFY(lines.first().startsWith(u"Tipologia: "_s));
        QVERIFY(lines.last().startsWith(u"Giorni rimanenti: "_s));
        QAccessibleInterface* const notes = QAccessible::queryAccessibleInterface(&part(*s.view, u"notes"_s));
        QVERIFY(notes->role() == QAccessible::EditableText);
        QVERIFY(notes->state().readOnly);
        QCOMPARE(notes->text(QAccessible::Name), u"Note"_s);
        QAccessibleInterface* const record = QAccessible::queryAccessibleInterface(&part(*s.view, u"maintenance0"_s));
        QCOMPARE(record->role(), QAccessible::ListItem);
        QCOMPARE(record->parent()->role(), QAccessible::List);
        QVERIFY(record->text(QAccessible::Name).contains(u"Prova"_s));
    }

    void nothingIsCutOff_data()
    {
        QTest::addColumn<qreal>("size");
        QTest::newRow("usual text") << 1.0;
        QTest::newRow("larger by a quarter") << 1.25;
    }

    void nothingIsCutOff()
    {
        QFETCH(qreal, size);
        const ScaledText scaled(size);
        Maintenance record = makeRecord(1, 1, u"Sostituzione degli anelli di tenuta e prova"_s);
        record.cost = 1234.5;
        record.performedBy = QString(60, u'W');
        ShownDetail s({record}, 3);
        s.item.name = QString(70, u'W');
        s.item.serialNumber = QString(50, u'8');
        s.item.notes = QString(200, u'n');
        s.f.equipment.updateEquipment(s.item);
        s.view->resize(s.view->minimumWidth(), 2400);
        settle();
        QCOMPARE(clippedTexts(*s.view), QStringList());
    }
};

ABISSORA_TEST(tst_DetailReading);

#include "tst_DetailReading.moc"
