// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "TestRunner.h"
#include "Tokens.h"

#include <QPalette>
#include <QTest>
#include <algorithm>
#include <cmath>

using namespace abissora;

namespace {

double luminance(const QColor& color)
{
    const auto linear = [](float channel) {
        return channel <= 0.04045F ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& first, const QColor& second)
{
    const auto [darker, lighter] = std::minmax({luminance(first), luminance(second)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor over(const QColor& ground, QColor ink, float alpha)
{
    const auto channel = [alpha](float below, float above) { return below + (above - below) * alpha; };
    return QColor::fromRgbF(channel(ground.redF(), ink.redF()), channel(ground.greenF(), ink.greenF()),
                            channel(ground.blueF(), ink.blueF()));
}

struct Lab
{
    double l;
    double a;
    double b;
};

/// CIELAB under D65.
Lab labOf(const QColor& color)
{
    const auto linear = [](float channel) {
        return channel <= 0.04045F ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    const auto root = [](double t) { return t > 216.0 / 24389 ? std::cbrt(t) : (24389.0 / 27 * t + 16) / 116; };
    const double r = linear(color.redF());
    const double g = linear(color.greenF());
    const double b = linear(color.blueF());
    const double x = root((0.4124564 * r + 0.3575761 * g + 0.1804375 * b) / 0.95047);
    const double y = root(0.2126729 * r + 0.7151522 * g + 0.0721750 * b);
    const double z = root((0.0193339 * r + 0.1191920 * g + 0.9503041 * b) / 1.08883);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

/// How different two colours look: CIEDE2000, where about 2 is the least that is seen side by side.
double difference(const QColor& first, const QColor& second)
{
    constexpr double degree = M_PI / 180;
    Lab one = labOf(first);
    Lab two = labOf(second);
    const auto seventh = [](double chroma) {
        return std::sqrt(std::pow(chroma, 7) / (std::pow(chroma, 7) + std::pow(25, 7)));
    };
    const double g = 0.5 * (1 - seventh((std::hypot(one.a, one.b) + std::hypot(two.a, two.b)) / 2));
    one.a *= 1 + g;
    two.a *= 1 + g;
    const double c1 = std::hypot(one.a, one.b);
    const double c2 = std::hypot(two.a, two.b);
    const double h1 = std::fmod(std::atan2(one.b, one.a) / degree + 360, 360);
    const double h2 = std::fmod(std::atan2(two.b, two.a) / degree + 360, 360);
    const double dh = std::remainder(h2 - h1, 360);
    const double hue = std::fmod(h1 + dh / 2 + 360, 360);
    const double l = (one.l + two.l) / 2;
    const double c = (c1 + c2) / 2;
    const double t = 1 - 0.17 * std::cos((hue - 30) * degree) + 0.24 * std::cos(2 * hue * degree) +
                     0.32 * std::cos((3 * hue + 6) * degree) - 0.2 * std::cos((4 * hue - 63) * degree);
    const double dl = (two.l - one.l) / (1 + 0.015 * std::pow(l - 50, 2) / std::sqrt(20 + std::pow(l - 50, 2)));
    const double dc = (c2 - c1) / (1 + 0.045 * c);
    const double dhue = 2 * std::sqrt(c1 * c2) * std::sin(dh / 2 * degree) / (1 + 0.015 * c * t);
    const double turn = -2 * seventh(c) * std::sin(60 * std::exp(-std::pow((hue - 275) / 25, 2)) * degree);
    return std::sqrt(dl * dl + dc * dc + dhue * dhue + turn * dc * dhue);
}

using Role = QColor Tokens::*;

struct Named
{
    const char* name;
    Role role;
};

constexpr double textContrast = 4.5;
constexpr double shapeContrast = 3.0;

constexpr Named window{"window", &Tokens::window};
constexpr Named sidebar{"sidebar", &Tokens::sidebar};
constexpr Named surface{"surface", &Tokens::surface};
constexpr Named field{"field", &Tokens::field};
constexpr Named accentTint{"accent tint", &Tokens::accentTint};
constexpr Named selection{"selection", &Tokens::selection};
constexpr Named dangerTint{"danger tint", &Tokens::dangerTint};
constexpr Named divider{"divider", &Tokens::divider};

} // namespace

class tst_Tokens : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void contrastOfPairs_data();
    void contrastOfPairs();
    void namedColorsAreReadableIcons_data();
    void namedColorsAreReadableIcons();
    void namedColorsCanBeToldApart();
    void everyColorIsSet();
    void aPaletteTellsItsScheme();
};

void tst_Tokens::contrastOfPairs_data()
{
    QTest::addColumn<QColor>("ink");
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<double>("least");
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        const Tokens& tokens = Tokens::of(scheme);
        const char* const schemeName = scheme == Scheme::Light ? "light" : "dark";
        const auto pairs = [&](const Named& ink, std::initializer_list<Named> grounds, double least) {
            for (const Named& ground : grounds)
                QTest::addRow("%s: %s on %s", schemeName, ink.name, ground.name)
                    << tokens.*ink.role << tokens.*ground.role << least;
        };
        pairs({"text", &Tokens::text},
              {window, sidebar, surface, field, accentTint, selection, dangerTint, divider, {"match", &Tokens::match}},
              textContrast);
        pairs({"secondary text", &Tokens::secondaryText},
              {window, sidebar, surface, field, accentTint, selection, divider}, textContrast);
        pairs({"accent ink", &Tokens::accentInk}, {window, surface, field, accentTint}, textContrast);
        pairs({"danger", &Tokens::danger}, {window, surface, field, selection, dangerTint}, textContrast);
        pairs({"ok", &Tokens::ok}, {window, surface, selection}, textContrast);
        pairs({"warning", &Tokens::warning}, {window, surface}, textContrast);
        pairs({"text on fill", &Tokens::onFill},
              {{"accent fill", &Tokens::accentFill}, {"danger fill", &Tokens::dangerFill}}, textContrast);
        pairs({"control border", &Tokens::strongBorder}, {window, sidebar, surface, field}, shapeContrast);
        pairs({"focus ring", &Tokens::accentInk}, {window, sidebar, surface, field, selection}, shapeContrast);
        pairs({"filled control", &Tokens::accentFill}, {window, surface}, shapeContrast);
        pairs({"badge", &Tokens::dangerFill}, {sidebar}, shapeContrast);
        pairs({"switch thumb", &Tokens::onFill},
              {{"switch off", &Tokens::strongBorder}, {"switch on", &Tokens::accentFill}}, shapeContrast);
    }
}

void tst_Tokens::contrastOfPairs()
{
    QFETCH(const QColor, ink);
    QFETCH(const QColor, ground);
    QFETCH(const double, least);
    const double measured = contrast(ink, ground);
    QVERIFY2(measured >= least, qPrintable(u"%1:1 where %2:1 is wanted"_s.arg(measured).arg(least)));
}

void tst_Tokens::namedColorsAreReadableIcons_data()
{
    QTest::addColumn<QColor>("ink");
    QTest::addColumn<QColor>("ground");
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        const Tokens& tokens = Tokens::of(scheme);
        for (int color = 0; color <= static_cast<int>(NamedColor::secondary); ++color) {
            const QColor ink = tokens.named(static_cast<NamedColor>(color));
            const char* const schemeName = scheme == Scheme::Light ? "light" : "dark";
            QTest::addRow("%s: %d on surface", schemeName, color) << ink << tokens.surface;
            QTest::addRow("%s: %d on window", schemeName, color) << ink << tokens.window;
            QTest::addRow("%s: %d on sidebar", schemeName, color) << ink << tokens.sidebar;
            QTest::addRow("%s: %d on selection", schemeName, color) << ink << tokens.selection;
            QTest::addRow("%s: %d on its own tint", schemeName, color) << ink << over(tokens.surface, ink, 0.15F);
        }
    }
}

void tst_Tokens::namedColorsAreReadableIcons()
{
    QFETCH(const QColor, ink);
    QFETCH(const QColor, ground);
    const double measured = contrast(ink, ground);
    QVERIFY2(measured >= shapeContrast, qPrintable(QString::number(measured)));
}

void tst_Tokens::namedColorsCanBeToldApart()
{
    const auto isAbout = [](double measured, double wanted) { return std::abs(measured - wanted) < 0.1; };
    QVERIFY(isAbout(difference(Qt::black, Qt::white), 100));
    QCOMPARE(difference(Qt::red, Qt::red), 0);
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        const auto& colors = Tokens::of(scheme).namedColors;
        for (std::size_t i = 0; i < colors.size(); ++i) {
            for (std::size_t j = 0; j < i; ++j) {
                const double measured = difference(colors.at(i), colors.at(j));
                QVERIFY2(measured > 11.5, qPrintable(u"%1 and %2: %3"_s.arg(j).arg(i).arg(measured)));
            }
        }
    }
}

void tst_Tokens::everyColorIsSet()
{
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        const Tokens& tokens = Tokens::of(scheme);
        for (const Role role : {&Tokens::window,        &Tokens::sidebar,    &Tokens::surface,      &Tokens::field,
                                &Tokens::border,        &Tokens::divider,    &Tokens::strongBorder, &Tokens::text,
                                &Tokens::secondaryText, &Tokens::disabled,   &Tokens::accentInk,    &Tokens::accentFill,
                                &Tokens::onFill,        &Tokens::accentTint, &Tokens::selection,    &Tokens::danger,
                                &Tokens::dangerFill,    &Tokens::dangerTint, &Tokens::ok,           &Tokens::warning,
                                &Tokens::scrim})
            QVERIFY((tokens.*role).isValid());
        QVERIFY(std::all_of(tokens.namedColors.begin(), tokens.namedColors.end(), std::mem_fn(&QColor::isValid)));
    }
}

void tst_Tokens::aPaletteTellsItsScheme()
{
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        QPalette palette;
        palette.setColor(QPalette::Window, Tokens::of(scheme).window);
        QCOMPARE(schemeOf(palette), scheme);
        QCOMPARE(&Tokens::of(palette), &Tokens::of(scheme));
    }
}

ABISSORA_TEST(tst_Tokens);
#include "tst_Tokens.moc"
