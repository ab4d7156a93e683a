// SPDX-License-Identifier: MIT
#include "PictureComparison.h"

#include "Literals.h"

#include <QPainter>

namespace abissora::gallery {

namespace {

// Differences of a channel, of 255.
constexpr int groundTolerance = 3; ///< between grounds
constexpr int bareTolerance = 12;  ///< between the means of a bare block and an inked one
constexpr int inkTolerance = 32;   ///< between the means of inked blocks
constexpr int noise = 16;          ///< within a bare block

/// Grounds are compared by parts of a block that have one colour in both pictures: finer than what moves, coarser than
/// most strokes of letters.
constexpr int partSide = blockSide / 8;
constexpr int partsThatMatter = 8;

constexpr int strayBlocks = 3;

int difference(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

template <typename Visit>
void forEachPixel(const QImage& image, const QRect& place, Visit visit)
{
    for (int y = place.top(); y <= place.bottom(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        std::for_each(line + place.left(), line + place.right() + 1, visit);
    }
}

QRgb meanOf(const QImage& image, const QRect& place)
{
    int red = 0;
    int green = 0;
    int blue = 0;
    forEachPixel(image, place, [&](QRgb pixel) {
        red += qRed(pixel);
        green += qGreen(pixel);
        blue += qBlue(pixel);
    });
    const int pixels = place.width() * place.height();
    return qRgb(red / pixels, green / pixels, blue / pixels);
}

/// Whether no pixel is further than that from the first.
bool isPlain(const QImage& image, const QRect& place, int tolerance)
{
    const QRgb first = image.pixel(place.topLeft());
    bool plain = true;
    forEachPixel(image, place, [&](QRgb pixel) { plain = plain && difference(pixel, first) <= tolerance; });
    return plain;
}

bool groundsDiffer(const QImage& a, const QRect& placeInA, const QImage& b, QPoint shift)
{
    const int side = qRound(partSide * a.devicePixelRatio());
    int differing = 0;
    for (int y = placeInA.top(); y <= placeInA.bottom(); y += side) {
        for (int x = placeInA.left(); x <= placeInA.right(); x += side) {
            if (difference(a.pixel(x, y), b.pixel(QPoint(x, y) + shift)) <= groundTolerance)
                continue;
            const QRect part = QRect(x, y, side, side) & placeInA;
            if (isPlain(a, part, 0) && isPlain(b, part.translated(shift), 0))
                ++differing;
        }
    }
    return differing >= partsThatMatter;
}

bool blocksDiffer(const QImage& a, const QRect& placeInA, const QImage& b, QPoint shift)
{
    const QRect placeInB = placeInA.translated(shift);
    const bool sameKind = isPlain(a, placeInA, noise) == isPlain(b, placeInB, noise);
    return difference(meanOf(a, placeInA), meanOf(b, placeInB)) > (sameKind ? inkTolerance : bareTolerance) ||
           groundsDiffer(a, placeInA, b, shift);
}

/// Whether the block is none of those that lie within one logical pixel of its place, where rounding may move it.
bool isMissing(const QImage& a, const QRect& place, const QImage& b)
{
    const int step = qRound(a.devicePixelRatio());
    for (const int dy : {0, -step, step}) {
        for (const int dx : {0, -step, step}) {
            const QPoint shift(dx, dy);
            if (b.rect().contains(place.translated(shift)) && !blocksDiffer(a, place, b, shift))
                return false;
        }
    }
    return true;
}

QImage paled(QImage image)
{
    QPainter painter(&image);
    painter.fillRect(image.rect(), QColor(255, 255, 255, 160));
    return image;
}

} // namespace

bool Comparison::alike() const
{
    return blocks > 0 && differing <= strayBlocks;
}

QString Comparison::text() const
{
    return blocks == 0 ? u"the sizes differ"_s : u"%1 of %2 blocks differ"_s.arg(differing).arg(blocks);
}

Comparison compare(const QImage& kept, const QImage& drawn)
{
    const QImage before = kept.convertToFormat(QImage::Format_RGB32);
    const QImage now = drawn.convertToFormat(QImage::Format_RGB32);
    Comparison result{.difference = paled(now)};
    if (before.size() != now.size())
        return result;
    QPainter marks(&result.difference);
    marks.scale(1 / now.devicePixelRatio(), 1 / now.devicePixelRatio());
    const int side = qRound(blockSide * now.devicePixelRatio());
    for (int y = 0; y < now.height(); y += side) {
        for (int x = 0; x < now.width(); x += side) {
            const QRect place = QRect(x, y, side, side) & now.rect();
            ++result.blocks;
            if (!isMissing(before, place, now))
                continue;
            ++result.differing;
            marks.fillRect(place, QColor(255, 0, 0, 110));
        }
    }
    return result;
}

} // namespace abissora::gallery
