// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "SchemeSwitch.h"
#include "SymbolIcon.h"
#include "TestRunner.h"

#include <QImage>
#include <QPainter>
#include <QTest>

using namespace abissora;
using abissora::test::SchemeSwitch;

namespace {

// A filled picture, so that some pixel has the ink's full colour.
const QString filled = u"doc.fill"_s;
const QString unknown = u"no.such.symbol"_s;

QImage imageOf(const QIcon& icon, QSize size = {32, 32}, QIcon::Mode mode = QIcon::Normal, qreal scale = 1)
{
    return icon.pixmap(size, scale, mode).toImage();
}

// The colour of the opaque pixels, invalid when there is none or when they differ.
QColor inkOf(const QImage& image)
{
    QColor ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.alpha() < 255)
                continue;
            if (ink.isValid() && ink != pixel)
                return {};
            ink = pixel;
        }
    }
    return ink;
}

QColor inkOf(const QIcon& icon, QIcon::Mode mode = QIcon::Normal)
{
    return inkOf(imageOf(icon, {32, 32}, mode));
}

bool isBlank(const QImage& image)
{
    return !inkOf(image).isValid();
}

QImage blankCanvas(QSize pixels, qreal scale = 1)
{
    QImage canvas(pixels, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    canvas.setDevicePixelRatio(scale);
    return canvas;
}

QImage painted(const QIcon& icon, QSize size)
{
    QImage canvas = blankCanvas(size);
    QPainter painter(&canvas);
    icon.paint(&painter, canvas.rect());
    return canvas;
}

QRect boundsOfInk(const QImage& image)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) > 0)
                bounds |= QRect(x, y, 1, 1);
    return bounds;
}

} // namespace

class tst_SymbolIcon : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anUnknownSymbolIsNullAndPaintsNothing_data();
    void anUnknownSymbolIsNullAndPaintsNothing();
    void theLibraryKnowsWhatItHas();
    void aSymbolTakesThePalettesTextColour();
    void aNamedColourFollowsTheScheme();
    void aFixedColourStaysUnlessDisabled();
    void aTranslucentColourStaysTranslucent();
    void modesHaveColoursOfTheirOwn_data();
    void modesHaveColoursOfTheirOwn();
    void bitmapsHaveTheDevicesPixels_data();
    void bitmapsHaveTheDevicesPixels();
    void paintingIsSharpAtEveryScale_data();
    void paintingIsSharpAtEveryScale();
    void aPictureKeepsItsProportionsInTheMiddle();
    void aCopyDrawsTheSame();
    void aTypeIsDrawnInItsColour();
    void aMenuGetsABitmapAtScaleTwo();
    void aMenuGetsOtherSymbolsAsTheyAre();
    void theApplicationHasAPictureInItsOwnColours();
    void theSmallDrawingsOfTheApplicationAreSharp_data();
    void theSmallDrawingsOfTheApplicationAreSharp();
    void aSmallDrawingKeepsItsSizeWhereLittleRoomIsLeft();
    void windowSystemsGetTheApplicationAtEveryUsualSize();
};

void tst_SymbolIcon::anUnknownSymbolIsNullAndPaintsNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("unknown") << unknown;
    QTest::newRow("empty") << QString();
    QTest::newRow("other case") << u"Dive.regulator"_s;
    QTest::newRow("with its suffix") << u"doc.fill.svg"_s;
    QTest::newRow("out of the folder") << u"../appicon/abissora"_s;
}

void tst_SymbolIcon::anUnknownSymbolIsNullAndPaintsNothing()
{
    QFETCH(QString, name);
    for (const QIcon& icon :
         {symbolIcon(name), symbolIcon(name, QColor(Qt::red)), typeIcon(name), typeIconForMenu(name, 14)}) {
        QVERIFY(icon.isNull());
        QVERIFY(icon.pixmap(16).isNull());
        QVERIFY(isBlank(painted(icon, {16, 16})));
    }
    QVERIFY(!ResourceSymbolLibrary().contains(name));
}

void tst_SymbolIcon::theLibraryKnowsWhatItHas()
{
    QVERIFY(ResourceSymbolLibrary().contains(u"dive.regulator"_s));
    QVERIFY(ResourceSymbolLibrary().contains(filled));
    QVERIFY(!symbolIcon(filled).isNull());
    QCOMPARE(symbolIcon(filled).name(), filled);
}

void tst_SymbolIcon::aSymbolTakesThePalettesTextColour()
{
    const QIcon icon = symbolIcon(filled);
    const SchemeSwitch light(Scheme::Light);
    QCOMPARE(inkOf(icon), Tokens::of(Scheme::Light).text);
    const SchemeSwitch dark(Scheme::Dark);
    QCOMPARE(inkOf(icon), Tokens::of(Scheme::Dark).text);
}

void tst_SymbolIcon::aNamedColourFollowsTheScheme()
{
    const QIcon icon = symbolIcon(filled, NamedColor::orange);
    const SchemeSwitch light(Scheme::Light);
    QCOMPARE(inkOf(icon), Tokens::of(Scheme::Light).named(NamedColor::orange));
    const SchemeSwitch dark(Scheme::Dark);
    QCOMPARE(inkOf(icon), Tokens::of(Scheme::Dark).named(NamedColor::orange));
}

void tst_SymbolIcon::aFixedColourStaysUnlessDisabled()
{
    const SchemeSwitch dark(Scheme::Dark);
    const QIcon icon = symbolIcon(filled, QColor(Qt::magenta));
    QCOMPARE(inkOf(icon), QColor(Qt::magenta));
    QCOMPARE(inkOf(icon, QIcon::Selected), QColor(Qt::magenta));
    QCOMPARE(inkOf(icon, QIcon::Disabled), Tokens::of(Scheme::Dark).disabled);
}

void tst_SymbolIcon::aTranslucentColourStaysTranslucent()
{
    const QImage image = imageOf(symbolIcon(filled, QColor(255, 0, 0, 128)));
    const QColor middle = image.pixelColor(16, 20);
    QVERIFY(qAbs(middle.alpha() - 128) <= 1);
    QCOMPARE(middle.red(), 255);
}

void tst_SymbolIcon::modesHaveColoursOfTheirOwn_data()
{
    QTest::addColumn<Scheme>("scheme");
    QTest::newRow("light") << Scheme::Light;
    QTest::newRow("dark") << Scheme::Dark;
}

void tst_SymbolIcon::modesHaveColoursOfTheirOwn()
{
    QFETCH(Scheme, scheme);
    const SchemeSwitch now(scheme);
    const Tokens& tokens = Tokens::of(scheme);
    for (const QIcon& icon : {symbolIcon(filled), symbolIcon(filled, NamedColor::red)}) {
        QCOMPARE(inkOf(icon, QIcon::Disabled), tokens.disabled);
        QCOMPARE(inkOf(icon, QIcon::Selected), tokens.onFill);
        QCOMPARE(inkOf(icon, QIcon::Active), inkOf(icon, QIcon::Normal));
    }
}

void tst_SymbolIcon::bitmapsHaveTheDevicesPixels_data()
{
    QTest::addColumn<qreal>("scale");
    QTest::addColumn<int>("pixels");
    QTest::newRow("1") << 1.0 << 16;
    QTest::newRow("1.25") << 1.25 << 20;
    QTest::newRow("1.5") << 1.5 << 24;
    QTest::newRow("2") << 2.0 << 32;
}

void tst_SymbolIcon::bitmapsHaveTheDevicesPixels()
{
    QFETCH(qreal, scale);
    QFETCH(int, pixels);
    const QPixmap picture = symbolIcon(filled).pixmap(QSize(16, 16), scale);
    QCOMPARE(picture.size(), QSize(pixels, pixels));
    QCOMPARE(picture.devicePixelRatio(), scale);
    QCOMPARE(picture.deviceIndependentSize(), QSizeF(16, 16));
}

void tst_SymbolIcon::paintingIsSharpAtEveryScale_data()
{
    bitmapsHaveTheDevicesPixels_data();
}

// What is painted must be the bitmap of that many pixels itself, not one of another size stretched or shifted.
void tst_SymbolIcon::paintingIsSharpAtEveryScale()
{
    QFETCH(qreal, scale);
    QFETCH(int, pixels);
    const QIcon icon = symbolIcon(u"gear"_s);
    QImage canvas = blankCanvas(QSize(64, 64), scale);
    QPainter painter(&canvas);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    icon.paint(&painter, QRect(5, 7, 16, 16));
    painter.end();
    const QPoint place(qRound(5 * scale), qRound(7 * scale));
    canvas.setDevicePixelRatio(1);
    QCOMPARE(canvas.copy(QRect(place, QSize(pixels, pixels))), imageOf(icon, {pixels, pixels}));
}

void tst_SymbolIcon::aPictureKeepsItsProportionsInTheMiddle()
{
    const QIcon icon = symbolIcon(u"checkmark.circle.fill"_s);
    for (const QImage& image : {imageOf(icon, {96, 48}), painted(icon, {96, 48})}) {
        QCOMPARE(image.size(), QSize(96, 48));
        const QRect ink = boundsOfInk(image);
        QVERIFY(qAbs(ink.width() - ink.height()) <= 1);
        QVERIFY(ink.height() > 36);
        QVERIFY(qAbs(ink.center().x() - 47) <= 1);
        QVERIFY(qAbs(ink.center().y() - 23) <= 1);
    }
}

void tst_SymbolIcon::aCopyDrawsTheSame()
{
    const QIcon icon = symbolIcon(filled, NamedColor::teal);
    QIcon copy = icon;
    copy.detach();
    QCOMPARE(imageOf(copy), imageOf(icon));
    QCOMPARE(copy.name(), filled);
}

void tst_SymbolIcon::aTypeIsDrawnInItsColour()
{
    const SchemeSwitch dark(Scheme::Dark);
    const Tokens& tokens = Tokens::of(Scheme::Dark);
    QCOMPARE(inkOf(typeIcon(u"dive.tank"_s, NamedColor::blue)), tokens.named(NamedColor::blue));
    QCOMPARE(inkOf(typeIcon(filled, NamedColor::mint)), tokens.named(NamedColor::mint));
    QCOMPARE(inkOf(typeIcon(filled)), tokens.text);
}

void tst_SymbolIcon::aMenuGetsABitmapAtScaleTwo()
{
    const SchemeSwitch light(Scheme::Light);
    const QIcon icon = typeIconForMenu(u"dive.knife"_s, 14, NamedColor::red);
    QCOMPARE(icon.availableSizes(), QList<QSize>{QSize(28, 28)});
    const QImage image = icon.pixmap(QSize(14, 14), 2.0).toImage();
    QCOMPARE(image.size(), QSize(28, 28));
    QCOMPARE(inkOf(image), Tokens::of(Scheme::Light).named(NamedColor::red));
}

void tst_SymbolIcon::aMenuGetsOtherSymbolsAsTheyAre()
{
    const QIcon icon = typeIconForMenu(filled, 14, NamedColor::red);
    QVERIFY(icon.availableSizes().isEmpty());
    QCOMPARE(imageOf(icon), imageOf(typeIcon(filled, NamedColor::red)));
}

void tst_SymbolIcon::theApplicationHasAPictureInItsOwnColours()
{
    QVERIFY(!applicationIcon().isNull());
    const QImage image = imageOf(applicationIcon(), {64, 64});
    QCOMPARE(image.size(), QSize(64, 64));
    const QColor top = image.pixelColor(32, 6);
    const QColor frame = image.pixelColor(11, 32);
    QVERIFY(top.blue() > top.red());
    QCOMPARE(frame, QColor(Qt::white));
}

void tst_SymbolIcon::theSmallDrawingsOfTheApplicationAreSharp_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<int>("frame"); // left edge of the mask's frame
    QTest::addColumn<int>("width"); // its breadth
    QTest::newRow("16") << 16 << 1 << 1;
    QTest::newRow("22") << 22 << 2 << 2;
    QTest::newRow("32") << 32 << 3 << 3;
}

// Beside a straight edge there is no pixel of a colour in between.
void tst_SymbolIcon::theSmallDrawingsOfTheApplicationAreSharp()
{
    QFETCH(int, side);
    QFETCH(int, frame);
    QFETCH(int, width);
    const QImage image = imageOf(applicationIcon(), {side, side});
    const int middle = side / 2;
    const QColor glass = image.pixelColor(frame + width, middle);
    for (int x = 0; x < width; ++x) {
        QCOMPARE(image.pixelColor(frame + x, middle), QColor(Qt::white));
        QCOMPARE(image.pixelColor(side - 1 - frame - x, middle), QColor(Qt::white));
    }
    QVERIFY(image.pixelColor(frame - 1, middle).lightness() < 120);
    QVERIFY(glass.lightness() < 60);
    QCOMPARE(image.pixelColor(side - 1 - frame - width, middle), glass);
}

void tst_SymbolIcon::aSmallDrawingKeepsItsSizeWhereLittleRoomIsLeft()
{
    const QImage picture = imageOf(applicationIcon(), {24, 24});
    QCOMPARE(boundsOfInk(picture), QRect(1, 1, 22, 22));
    QCOMPARE(picture.copy(1, 1, 22, 22), imageOf(applicationIcon(), {22, 22}));
    QCOMPARE(boundsOfInk(imageOf(applicationIcon(), {20, 20})), QRect(0, 0, 20, 20));
    QVERIFY(imageOf(applicationIcon(), {0, 0}).isNull());
}

// Without a list of sizes a window would get four pictures, none of them for a panel of 22 or 24 pixels.
void tst_SymbolIcon::windowSystemsGetTheApplicationAtEveryUsualSize()
{
    const QList<QSize> sizes = applicationIcon().availableSizes();
    for (const int side : {16, 22, 24, 32, 48, 64, 128})
        QVERIFY2(sizes.contains(QSize(side, side)), QByteArray::number(side).constData());
}

ABISSORA_TEST(tst_SymbolIcon);

#include "tst_SymbolIcon.moc"
