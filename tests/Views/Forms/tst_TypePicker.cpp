// SPDX-License-Identifier: MIT
#include "FormFields.h"
#include "Literals.h"

#include "Fakes.h"
#include "TestRunner.h"

#include <QAbstractItemView>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

using namespace abissora;
using namespace abissora::test;

namespace {

QList<EquipmentTypeModel> makeTypes(const QStringList& names)
{
    QList<EquipmentTypeModel> types;
    for (const QString& name : names)
        types.append({SequentialIds::at(1), name, u"dive.bcd"_s, u"blue"_s, 365, true});
    return types;
}

const QStringList threeNames{u"GAV"_s, u"Muta"_s, u"muta"_s};

} // namespace

class tst_TypePicker : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void settingEmitsNothing()
    {
        TypePicker picker;
        QSignalSpy chosen(&picker, &TypePicker::chosen);
        picker.setTypes(makeTypes(threeNames), u"Muta"_s);
        picker.setTypes(makeTypes(threeNames), u"GAV"_s);
        picker.setTypes(makeTypes(threeNames.mid(1)), u"muta"_s);
        QCOMPARE(picker.currentText(), u"muta"_s);
        picker.setTypes(makeTypes(threeNames), u"Faro"_s);
        QCOMPARE(picker.currentIndex(), -1);
        QVERIFY(chosen.isEmpty());
    }

    void choosingEmitsOnce()
    {
        TypePicker picker;
        picker.setTypes(makeTypes(threeNames), u"GAV"_s);
        picker.show();
        QSignalSpy chosen(&picker, &TypePicker::chosen);
        QTest::keyClick(&picker, Qt::Key_Down);
        QCOMPARE(chosen.size(), 1);
        QCOMPARE(chosen.first().first().toString(), u"Muta"_s);
        picker.showPopup();
        QTest::keyClick(picker.view(), Qt::Key_Return); // the one it has
        QCOMPARE(chosen.size(), 1);
        picker.showPopup();
        QTest::keyClick(picker.view(), Qt::Key_Up);
        QTest::keyClick(picker.view(), Qt::Key_Return);
        QCOMPARE(chosen.size(), 2);
        QCOMPARE(picker.currentText(), u"GAV"_s);
    }

    void theWheelBelongsToWhatIsAround()
    {
        TypePicker picker;
        picker.setTypes(makeTypes(threeNames), u"Muta"_s);
        picker.show();
        const QPointF place = picker.rect().center();
        QWheelEvent wheel(place, picker.mapToGlobal(place), {}, QPoint(0, 120), Qt::NoButton, {}, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(&picker, &wheel);
        QVERIFY(!wheel.isAccepted());
        QCOMPARE(picker.currentText(), u"Muta"_s);
    }

    void eachTypeHasItsPicture()
    {
        auto types = makeTypes(threeNames);
        types[1].icon.clear(); // shown as unknown
        TypePicker picker;
        picker.setTypes(types, u"GAV"_s);
        for (int i = 0; i < picker.count(); ++i)
            QVERIFY(!picker.itemIcon(i).isNull());
    }
};

ABISSORA_TEST(tst_TypePicker);

#include "tst_TypePicker.moc"
