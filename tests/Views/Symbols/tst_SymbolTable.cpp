// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "SymbolIcon.h"
#include "TestRunner.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace abissora;

namespace {

struct Row
{
    QString symbol;
    QString picture;
    QString licence;
};

QList<Row> table()
{
    QFile file(QStringLiteral(ABISSORA_SYMBOL_TABLE));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    file.readLine();
    QList<Row> rows;
    while (!file.atEnd()) {
        const QStringList cells = QString::fromUtf8(file.readLine()).trimmed().split(u'\t');
        rows.append({cells.value(0), cells.value(1), cells.value(2)});
    }
    return rows;
}

QString svgOf(const QString& symbol)
{
    QFile file(":/symbols/"_L1 + symbol + ".svg"_L1);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void addNames(const char* words)
{
    QTest::addColumn<QString>("name");
    for (const QByteArray& name : QByteArray(words).split(' '))
        QTest::newRow(name.constData()) << QString::fromLatin1(name);
}

} // namespace

class tst_SymbolTable : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /// At the size of the sidebar, where one was taken for the other.
    void gaugesCanBeToldApart()
    {
        const auto pictureOf = [](const QString& name) {
            return typeIcon(name, NamedColor::primary).pixmap(16, 16).toImage().convertToFormat(QImage::Format_ARGB32);
        };
        const auto difference = [&](const QString& first, const QString& second) {
            const QImage one = pictureOf(first);
            const QImage two = pictureOf(second);
            double inked = 0;
            double different = 0;
            for (int y = 0; y < one.height(); ++y) {
                for (int x = 0; x < one.width(); ++x) {
                    const int alpha = qAlpha(one.pixel(x, y));
                    const int other = qAlpha(two.pixel(x, y));
                    inked += alpha > 64 || other > 64 ? 1 : 0;
                    different += std::abs(alpha - other) > 128 ? 1 : 0;
                }
            }
            return different / inked;
        };
        const QString pressure = u"dive.gauge"_s;
        QVERIFY(difference(u"gauge.with.dots.needle.bottom.0percent"_s, pressure) > 0.4);
        QVERIFY(difference(u"gauge.with.dots.needle.bottom.50percent"_s, pressure) < 0.3); // those are alike
    }

    void everyRowPaintsAPicture_data();
    void everyRowPaintsAPicture();
    void everyPictureIsPlainAndOfOneColour_data();
    void everyPictureIsPlainAndOfOneColour();
    void theResourcesAreTheTable();
    void everySetOfTheCreditsIsUsedAndNoOther();
    void aDiscHasAHole_data();
    void aDiscHasAHole();
    void selectableIconsExist_data();
    void selectableIconsExist();
    void migratedIconsExist_data();
    void migratedIconsExist();
    void symbolsOfTheScreensExist_data();
    void symbolsOfTheScreensExist();
};

void tst_SymbolTable::everyRowPaintsAPicture_data()
{
    QTest::addColumn<QString>("name");
    for (const Row& row : table())
        QTest::newRow(qPrintable(row.symbol)) << row.symbol;
}

void tst_SymbolTable::everyRowPaintsAPicture()
{
    QFETCH(QString, name);
    QVERIFY(ResourceSymbolLibrary().contains(name));
    const QImage image = symbolIcon(name).pixmap(QSize(16, 16), 1).toImage();
    QCOMPARE(image.size(), QSize(16, 16));
    int inked = 0;
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x)
            inked += qAlpha(image.pixel(x, y)) > 127 ? 1 : 0;
    QVERIFY2(inked > 5, "hardly anything is painted");
    QVERIFY2(inked < 230, "the picture is a blot");
}

void tst_SymbolTable::everyPictureIsPlainAndOfOneColour_data()
{
    everyRowPaintsAPicture_data();
}

void tst_SymbolTable::everyPictureIsPlainAndOfOneColour()
{
    QFETCH(QString, name);
    static const QRegularExpression unpaintable(u"<(mask|clipPath|filter|use)\\b"_s);
    static const QRegularExpression ownColour(u"(fill|stroke|color)=\"(?!none\"|currentColor\")|style="_s);
    const QString svg = svgOf(name);
    QVERIFY(svg.contains("viewBox=\""_L1));
    QVERIFY(svg.contains("currentColor"_L1));
    QVERIFY(!unpaintable.match(svg).hasMatch());
    QVERIFY(!ownColour.match(svg).hasMatch());
}

void tst_SymbolTable::theResourcesAreTheTable()
{
    QVERIFY(ResourceSymbolLibrary().contains(u"gear"_s));
    QStringList listed;
    for (const Row& row : table())
        listed.append(row.symbol + ".svg"_L1);
    listed.sort();
    QStringList present = QDir(u":/symbols"_s).entryList(QDir::Files);
    present.sort();
    QCOMPARE(present, listed);
}

void tst_SymbolTable::everySetOfTheCreditsIsUsedAndNoOther()
{
    QSet<QString> sources;
    for (const Row& row : table()) {
        const QStringList parts = row.picture.split(u':');
        sources.insert(parts.at(parts.size() - 2));
    }
    QCOMPARE(sources, (QSet<QString>{u"game-icons"_s, u"icon-park-outline"_s, u"lucide"_s, u"mdi"_s, u"own"_s}));
}

void tst_SymbolTable::aDiscHasAHole_data()
{
    QTest::addColumn<QString>("name");
    for (const Row& row : table())
        if (row.picture.startsWith("disc:"_L1))
            QTest::newRow(qPrintable(row.symbol)) << row.symbol;
}

void tst_SymbolTable::aDiscHasAHole()
{
    QFETCH(QString, name);
    const QImage image = symbolIcon(name).pixmap(QSize(96, 96), 1).toImage();
    QCOMPARE(qAlpha(image.pixel(2, 2)), 0);
    // On the disc's rim, left and right of the glyph.
    QCOMPARE(qAlpha(image.pixel(14, 48)), 255);
    QCOMPARE(qAlpha(image.pixel(81, 48)), 255);
    int holes = 0;
    for (int y = 30; y < 66; ++y)
        for (int x = 30; x < 66; ++x)
            holes += qAlpha(image.pixel(x, y)) == 0 ? 1 : 0;
    QVERIFY2(holes > 100, "the glyph is not cut out of the disc");
}

void tst_SymbolTable::selectableIconsExist_data()
{
    addNames("dive.regulator dive.bcd dive.tank dive.mask dive.fins dive.wetsuit dive.drysuit dive.computer "
             "dive.light dive.compass gauge.with.dots.needle.bottom.0percent dive.gauge dive.knife dive.reel "
             "balloon.fill dive.weightbelt dive.lifejacket cross.case.fill lungs.fill dive.whistle "
             "flag.checkered antenna.radiowaves.left.and.right bell.and.waves.left.and.right.fill camera.fill "
             "camera.macro.circle.fill suitcase.fill bag.badge.plus wrench.and.screwdriver.fill "
             "gearshape.fill water.waves figure.water.fitness dive.snorkel graduationcap.fill mountain.2.fill "
             "sailboat.fill moon.stars.fill arrow.down.circle.fill wrench.fill bubbles.and.sparkles.fill "
             "checkmark.circle.fill hammer.circle.fill magnifyingglass.circle.fill slider.horizontal.3 "
             "questionmark.circle.fill circle.hexagongrid.fill pencil.circle.fill");
}

void tst_SymbolTable::selectableIconsExist()
{
    QFETCH(QString, name);
    QVERIFY(ResourceSymbolLibrary().contains(name));
}

void tst_SymbolTable::migratedIconsExist_data()
{
    addNames("dive.regulator dive.bcd dive.tank dive.mask dive.fins dive.wetsuit dive.drysuit dive.computer "
             "dive.light compass.drawing gauge.with.dots.needle.bottom.50percent lasso balloon.fill "
             "scalemass.fill circle.dotted.circle.fill lungs.fill flag.checkered "
             "antenna.radiowaves.left.and.right bell.and.waves.left.and.right.fill figure.water.fitness "
             "fish.fill wrench.fill bubbles.and.sparkles.fill dive.compass dive.gauge dive.knife dive.reel "
             "dive.weightbelt dive.lifejacket dive.whistle dive.snorkel");
}

void tst_SymbolTable::migratedIconsExist()
{
    selectableIconsExist();
}

void tst_SymbolTable::symbolsOfTheScreensExist_data()
{
    addNames("folder folder.fill exclamationmark.triangle exclamationmark.triangle.fill gear list.bullet "
             "wrench chart.bar lightbulb arrow.clockwise magnifyingglass line.3.horizontal.decrease "
             "xmark.circle xmark.circle.fill tray info.circle note.text clock.arrow.circlepath "
             "checkmark.circle checkmark.seal checkmark.seal.fill calendar.circle.fill drop.circle.fill "
             "ellipsis.circle.fill pencil.circle trash.circle.fill doc.text.fill doc.fill doc.badge.plus "
             "arrow.triangle.2.circlepath wand.and.stars clock.fill bell arrow.down.circle paintbrush book "
             "book.fill arrow.counterclockwise sparkles quote.opening list.bullet.circle.fill "
             "exclamationmark.circle plus xmark pencil calendar chevron.up.down chevron.down checkmark");
}

void tst_SymbolTable::symbolsOfTheScreensExist()
{
    selectableIconsExist();
}

ABISSORA_TEST(tst_SymbolTable);

#include "tst_SymbolTable.moc"
