// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "EquipmentTypeFormState.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;
using namespace abissora::test;

namespace {

QStringList found(const QString& searchIconText)
{
    QStringList names;
    for (const auto& [title, icons] : filteredIcons(searchIconText)) {
        for (const DivingIcons icon : icons)
            names.append(title + u'/' + displayName(icon));
    }
    return names;
}

} // namespace

class tst_EquipmentTypeFormState : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aNewTypeStartsAsARegulator()
    {
        const EquipmentTypeFormState state;
        QCOMPARE(state.name, QString());
        QCOMPARE(state.selectedIcon, DivingIcons::regulator);
        QCOMPARE(state.selectedColor, AvailableColors::blue);
        QCOMPARE(state.serviceIntervalDays, 365);
    }

    void validNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("valid");
        QTest::newRow("nothing") << QString() << false;
        QTest::newRow("spaces") << u"   "_s << false;
        QTest::newRow("tab and line break") << u"\t\r\n"_s << false;
        QTest::newRow("other spaces") << QStringLiteral(u"\u00a0\u2003\u2028") << false;
        QTest::newRow("one letter") << u" a "_s << true;
        QTest::newRow("a mark") << u"-"_s << true;
    }
    void validNames()
    {
        QFETCH(QString, name);
        EquipmentTypeFormState state;
        state.name = name;
        QTEST(state.isFormValid(), "valid");
    }

    void iconsOfAStoredType_data()
    {
        QTest::addColumn<QString>("icon");
        QTest::addColumn<DivingIcons>("selected");
        QTest::newRow("own picture") << u"dive.knife"_s << DivingIcons::diveKnife;
        QTest::newRow("symbol") << u"wrench.fill"_s << DivingIcons::service;
        QTest::newRow("unknown") << u"safari.fill"_s << DivingIcons::regulator;
        QTest::newRow("other letter case") << u"Dive.knife"_s << DivingIcons::regulator;
        QTest::newRow("empty") << QString() << DivingIcons::regulator;
    }
    void iconsOfAStoredType()
    {
        QFETCH(QString, icon);
        EquipmentTypeModel type = equipmentType(1, u"Boa"_s);
        type.icon = icon;
        QTEST(EquipmentTypeFormState::of(type).selectedIcon, "selected");
    }

    void coloursOfAStoredType_data()
    {
        QTest::addColumn<QString>("color");
        QTest::addColumn<AvailableColors>("selected");
        for (const AvailableColors color : allCases<AvailableColors>())
            QTest::newRow(qPrintable(caseName(color))) << caseName(color) << color;
        QTest::newRow("shown all the same") << u"Teal"_s << AvailableColors::teal;
        QTest::newRow("a label") << u"Verde"_s << AvailableColors::blue;
        QTest::newRow("empty") << QString() << AvailableColors::blue;
    }
    void coloursOfAStoredType()
    {
        QFETCH(QString, color);
        EquipmentTypeModel type = equipmentType(1, u"Boa"_s);
        type.color = color;
        QTEST(EquipmentTypeFormState::of(type).selectedColor, "selected");
    }

    void savingActivatesAndKeepsTheRest()
    {
        EquipmentTypeModel type{SequentialIds::at(7), u"Boa"_s, u"dive.reel"_s, u"mint"_s, -5, true};
        QCOMPARE(EquipmentTypeFormState::of(type).toType(type.id), type);
        EquipmentTypeModel blanks = type;
        blanks.name = u" Boa\t "_s;
        QCOMPARE(EquipmentTypeFormState::of(blanks).toType(type.id), type);
        EquipmentTypeModel inactive = type;
        inactive.isActive = false;
        QCOMPARE(EquipmentTypeFormState::of(inactive).toType(type.id), type);
    }

    void savingReplacesWhatTheFormDoesNotOffer()
    {
        EquipmentTypeModel type = equipmentType(1, u"Boa"_s);
        type.icon = u"safari.fill"_s;
        type.color = u"Verde Acqua"_s;
        const EquipmentTypeModel saved = EquipmentTypeFormState::of(type).toType(type.id);
        QCOMPARE(saved.icon, u"dive.regulator"_s);
        QCOMPARE(saved.color, u"blue"_s);
    }

    void anEmptySearchShowsEveryIcon() { QCOMPARE(filteredIcons({}), categorizedDivingIcons()); }

    void iconsAreSearched_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("icons");
        QTest::newRow("displayed name") << u"bombola"_s << QStringList(u"Attrezzatura Principale/Bombola"_s);
        QTest::newRow("identifier") << u"dive.k"_s << QStringList(u"Accessori/Coltello"_s);
        QTest::newRow("letter case") << u"DIVE.K"_s << QStringList(u"Accessori/Coltello"_s);
        QTest::newRow("within") << u"sub"_s
                                << QStringList({u"Attrezzatura Principale/Computer Sub"_s,
                                                u"Comunicazione/Campana Sub"_s, u"Sicurezza/Bandiera Sub"_s,
                                                u"Tipi di Immersione/Subacquea"_s, u"Varie/Fotocamera Sub"_s,
                                                u"Varie/Borsa Sub"_s});
        QTest::newRow("spaces count") << u" bombola"_s << QStringList();
        QTest::newRow("not a pattern") << u".*"_s << QStringList();
        QTest::newRow("not the section's title") << u"Varie"_s << QStringList();
        QTest::newRow("nothing") << u"xyz"_s << QStringList();
    }
    void iconsAreSearched()
    {
        QFETCH(QString, text);
        QTEST(found(text), "icons");
    }

    void emptiedSectionsOfIconsGo()
    {
        const auto sections = filteredIcons(u"muta"_s);
        QCOMPARE(sections.size(), 1);
        QCOMPARE(sections.first().icons, QList<DivingIcons>({DivingIcons::wetsuit, DivingIcons::drysuit}));
        QVERIFY(filteredIcons(u"xyz"_s).isEmpty());
    }
};

ABISSORA_TEST(tst_EquipmentTypeFormState);

#include "tst_EquipmentTypeFormState.moc"
