// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "TestRunner.h"
#include "Theme.h"

#include <QTest>

using namespace abissora;

Q_DECLARE_METATYPE(abissora::Scheme)

class tst_Theme : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyRoleOfEveryGroupIsSet_data();
    void everyRoleOfEveryGroupIsSet();
    void inactiveWindowsLookLikeActiveOnes();
    void disabledTextIsPaler();
    void rolesThatWidgetsRelyOn();
    void menusHaveTheProgramsFont();
};

void tst_Theme::everyRoleOfEveryGroupIsSet_data()
{
    QTest::addColumn<Scheme>("scheme");
    QTest::newRow("light") << Scheme::Light;
    QTest::newRow("dark") << Scheme::Dark;
}

void tst_Theme::everyRoleOfEveryGroupIsSet()
{
    QFETCH(const Scheme, scheme);
    const QPalette palette = paletteFor(scheme);
    for (int group = 0; group < QPalette::NColorGroups; ++group) {
        for (int role = 0; role < QPalette::NColorRoles; ++role) {
            QVERIFY2(
                palette.isBrushSet(static_cast<QPalette::ColorGroup>(group), static_cast<QPalette::ColorRole>(role)),
                qPrintable(u"group %1, role %2"_s.arg(group).arg(role)));
        }
    }
}

void tst_Theme::inactiveWindowsLookLikeActiveOnes()
{
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark})
        QVERIFY(paletteFor(scheme).isEqual(QPalette::Active, QPalette::Inactive));
}

void tst_Theme::disabledTextIsPaler()
{
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        const QPalette palette = paletteFor(scheme);
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            QCOMPARE(palette.color(QPalette::Disabled, role), Tokens::of(scheme).disabled);
    }
}

void tst_Theme::rolesThatWidgetsRelyOn()
{
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        const QPalette palette = paletteFor(scheme);
        const Tokens& tokens = Tokens::of(scheme);
        QCOMPARE(palette.color(QPalette::AlternateBase), tokens.sidebar);
        QCOMPARE(palette.color(QPalette::Button), tokens.surface);
        QCOMPARE(palette.color(QPalette::PlaceholderText), tokens.secondaryText);
        QCOMPARE(palette.color(QPalette::Link), tokens.accentInk);
        QCOMPARE(palette.color(QPalette::ToolTipText), tokens.text);
        QCOMPARE(schemeOf(palette), scheme);
    }
}

void tst_Theme::menusHaveTheProgramsFont()
{
    QApplication::setStyle(u"fusion"_s);
    QFont small = QApplication::font();
    small.setPointSizeF(small.pointSizeF() / 2);
    for (const char* kind : {"QMenuBar", "QMenu"})
        QApplication::setFont(small, kind); // as a desktop does
    applyTheme(*qApp, Scheme::Light);
    for (const char* kind : {"QMenuBar", "QMenu"})
        QCOMPARE(QApplication::font(kind), QApplication::font());
}

ABISSORA_TEST(tst_Theme);
#include "tst_Theme.moc"
