// SPDX-License-Identifier: MIT
#include "Buttons.h"
#include "Literals.h"
#include "SearchField.h"
#include "Stepper.h"
#include "TestRunner.h"
#include "Theme.h"
#include "TypesParts.h"

#include <QSignalSpy>
#include <functional>

using namespace abissora;
using namespace abissora::test;

namespace {

/// The type as it stands in the catalogue after its form was saved.
EquipmentTypeModel savedAs(RegisterFixture& f, const EquipmentTypeModel& type,
                           const std::function<void(TypeForm&)>& edit)
{
    f.types.setTypes(f.types.getDefaultTypes() + QList<EquipmentTypeModel>{type});
    TypeForm form(f, std::optional(type));
    edit(form);
    click(form.sheet, "primary");
    if (form.sheet.isVisible())
        qFatal("the form did not save");
    return f.types.types().last();
}

} // namespace

class tst_TypeSaving : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void addingAType()
    {
        RegisterFixture f;
        const QList<EquipmentTypeModel> before = f.types.types();
        const int ids = f.ids.count();
        TypeForm o(f, newType);
        type(o.sheet, "name", u"Boa"_s);
        QTest::mouseClick(&usable<QAbstractButton>(o.sheet, "teal"), Qt::LeftButton);
        QTest::mouseClick(&cell(o, DivingIcons::reel), Qt::LeftButton);
        auto& interval = usable<Stepper>(o.sheet, "interval");
        interval.setFocus();
        QTest::keyClick(&interval, Qt::Key_Up);
        const QSignalSpy changed(&f.types, &EquipmentTypeViewModel::typesChanged);
        click(o.sheet, "primary");
        QVERIFY(!o.sheet.isVisible());
        QCOMPARE(changed.size(), 1);
        QCOMPARE(f.types.types(), before + QList<EquipmentTypeModel>({{SequentialIds::at(ids + 1), u"Boa"_s,
                                                                       u"dive.reel"_s, u"teal"_s, 395, true}}));
        const auto stored = f.preferences.data(EquipmentTypeViewModel::typesKey);
        QVERIFY(stored.value()->endsWith(
            R"("name":"Boa","icon":"dive.reel","color":"teal","serviceIntervalDays":395,"isActive":true}])"));
    }

    void editingReplacesTheType()
    {
        RegisterFixture f;
        const EquipmentTypeModel saved = savedAs(f, boa(), [](TypeForm& form) {
            type(form.sheet, "name", u"Pallone"_s);
            QTest::mouseClick(&usable<QAbstractButton>(form.sheet, "mint"), Qt::LeftButton);
        });
        EquipmentTypeModel expected = boa();
        expected.name = u"Pallone"_s;
        expected.color = u"mint"_s;
        QCOMPARE(saved, expected);
        QCOMPARE(f.types.types().size(), 17);
    }

    void editingNothingKeepsTheType()
    {
        RegisterFixture f;
        QCOMPARE(savedAs(f, boa(), [](TypeForm&) {}), boa());
    }

    /// As the items have it that are of the type.
    void theNameIsStoredWithoutBlanksAtItsEnds()
    {
        RegisterFixture f;
        QCOMPARE(savedAs(f, boa(), [](TypeForm& form) { type(form.sheet, "name", u"  Boa  "_s); }).name, u"Boa"_s);
        TypeForm form(f, newType);
        type(form.sheet, "name", u" Boa  gialla "_s);
        QCOMPARE(usable<QLineEdit>(form.sheet, "name").text(), u" Boa  gialla "_s);
        QTest::keyClick(form.sheet.focusWidget(), Qt::Key_Tab);
        QCOMPARE(usable<QLineEdit>(form.sheet, "name").text(), u"Boa  gialla"_s);
    }

    void longAndHostileNamesSurvive_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("long") << QString(40'000, u'n');
        QTest::newRow("markup") << u"<b>Boa</b> &amp; <img src=x>"_s;
        QTest::newRow("right to left") << QStringLiteral(u"\u0645\u0646\u0638\u0645 \u202e\u05d0\u05d1");
        QTest::newRow("place markers") << u"%1 '%2' \"%n\""_s;
        QTest::newRow("line break") << u"Boa\nrossa"_s;
        QTest::newRow("emoji") << QStringLiteral(u"\U0001F93F Boa");
    }
    void longAndHostileNamesSurvive()
    {
        QFETCH(QString, name);
        RegisterFixture f;
        EquipmentTypeModel type = boa();
        type.name = name;
        const EquipmentTypeModel saved = savedAs(f, type, [&name](TypeForm& form) {
            QCOMPARE(usable<QLineEdit>(form.sheet, "name").text(), name);
            QCOMPARE(textOf(form.sheet, "previewName"), name);
            QCOMPARE(usable<QLabel>(form.sheet, "previewName").textFormat(), Qt::PlainText);
            QVERIFY(form.sheet.width() < 1000 && form.sheet.height() < 700);
        });
        QCOMPARE(saved, type);
    }

    void anInactiveTypeIsActiveAfterwards()
    {
        RegisterFixture f;
        EquipmentTypeModel inactive = boa();
        inactive.isActive = false;
        QCOMPARE(savedAs(f, inactive, [](TypeForm&) {}), boa());
    }

    void anUnknownIconIsReplaced()
    {
        RegisterFixture f;
        EquipmentTypeModel type = boa();
        type.icon = u"compass.drawing"_s;
        const EquipmentTypeModel saved =
            savedAs(f, type, [](TypeForm& form) { QVERIFY(cell(form, DivingIcons::regulator).isChecked()); });
        QCOMPARE(saved.icon, u"dive.regulator"_s);
    }

    void twoTypesMayCarryOneName()
    {
        RegisterFixture f;
        TypeForm o(f, newType);
        type(o.sheet, "name", u"GAV"_s);
        click(o.sheet, "primary");
        QCOMPARE(f.types.types().size(), 17);
        QCOMPARE(f.types.getTypeByName(u"GAV"_s)->icon, u"dive.bcd"_s);
    }

    void aTypeThatIsGoneIsNotSaved()
    {
        RegisterFixture f;
        const QList<EquipmentTypeModel> before = f.types.types();
        TypeForm o(f, std::optional(boa()));
        click(o.sheet, "primary");
        QVERIFY(!o.sheet.isVisible());
        QCOMPARE(f.types.types(), before);
    }

    void onlyAValidFormSaves_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("valid");
        QTest::newRow("nothing") << QString() << false;
        QTest::newRow("spaces") << u"    "_s << false;
        QTest::newRow("a name") << u" B"_s << true;
    }
    void onlyAValidFormSaves()
    {
        QFETCH(QString, name);
        QFETCH(bool, valid);
        RegisterFixture f;
        TypeForm o(f, newType);
        type(o.sheet, "name", u"x"_s);
        type(o.sheet, "name", name);
        QCOMPARE(o.sheet.primaryButton()->isEnabled(), valid);
        QCOMPARE(isShown(o.sheet, "invalidName"), !valid);
        QTest::keyClick(&usable<QLineEdit>(o.sheet, "name"), Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(o.sheet.isVisible(), !valid);
        QCOMPARE(f.types.types().size(), valid ? 17 : 16);
    }

    void intervalSteps_data()
    {
        QTest::addColumn<qint64>("stored");
        QTest::addColumn<qint64>("up");
        QTest::addColumn<qint64>("down");
        QTest::newRow("odd") << qint64(365) << qint64(395) << qint64(335);
        QTest::newRow("shortest") << qint64(30) << qint64(60) << qint64(30);
        QTest::newRow("longest") << qint64(730) << qint64(730) << qint64(700);
        QTest::newRow("near the end") << qint64(725) << qint64(730) << qint64(695);
        QTest::newRow("near the start") << qint64(31) << qint64(61) << qint64(30);
        QTest::newRow("too short") << qint64(10) << qint64(30) << qint64(10);
        QTest::newRow("negative") << qint64(-3) << qint64(30) << qint64(-3);
        QTest::newRow("too long") << qint64(2000) << qint64(2000) << qint64(730);
    }
    void intervalSteps()
    {
        QFETCH(qint64, stored);
        QFETCH(qint64, up);
        QFETCH(qint64, down);
        RegisterFixture f;
        EquipmentTypeModel type = boa();
        type.serviceIntervalDays = stored;
        const auto stepped = [&](std::optional<Qt::Key> key) {
            return savedAs(f, type,
                           [key](TypeForm& form) {
                               auto& interval = usable<Stepper>(form.sheet, "interval");
                               interval.setFocus();
                               if (key)
                                   QTest::keyClick(&interval, *key);
                           })
                .serviceIntervalDays;
        };
        QCOMPARE(qint64(stepped(std::nullopt)), stored);
        QCOMPARE(qint64(stepped(Qt::Key_Up)), up);
        QCOMPARE(qint64(stepped(Qt::Key_Down)), down);
    }

    void leavingSavesNothing()
    {
        RegisterFixture f;
        const QList<EquipmentTypeModel> before = f.types.types();
        for (const bool byKey : {true, false}) {
            TypeForm o(f, newType);
            type(o.sheet, "name", u"Boa"_s);
            if (byKey)
                QTest::keyClick(&usable<QLineEdit>(o.sheet, "name"), Qt::Key_Escape);
            else
                click(o.sheet, "cancel");
            QVERIFY(!o.sheet.isVisible());
        }
        QCOMPARE(f.types.types(), before);
    }

    void returnInAFieldSavesNothing()
    {
        RegisterFixture f;
        TypeForm o(f, newType);
        type(o.sheet, "name", u"Boa"_s);
        QTest::keyClick(&usable<QLineEdit>(o.sheet, "name"), Qt::Key_Return);
        type(o.sheet, "iconSearch", u"bomb"_s);
        QTest::keyClick(&usable<SearchField>(o.sheet, "iconSearch"), Qt::Key_Return);
        QVERIFY(o.sheet.isVisible());
    }

    void searchingChangesNothing()
    {
        RegisterFixture f;
        const EquipmentTypeModel saved = savedAs(f, boa(), [](TypeForm& form) {
            type(form.sheet, "iconSearch", u"xyz"_s);
            QVERIFY(isShown(form.sheet, "noIcon"));
        });
        QCOMPARE(saved, boa());
    }
};

ABISSORA_TEST(tst_TypeSaving);

#include "tst_TypeSaving.moc"
