// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>

namespace abissora::icons {

/// The same bytes whenever the same toolkit writes them: without times, texts or the screen's resolution.
[[nodiscard]] QByteArray png(const QImage& picture);

/// Windows' container of square pictures of at most 256 pixels. Those of 256 are PNGs, smaller ones bitmaps with a
/// mask, which every reader of such files knows.
[[nodiscard]] QByteArray ico(const QList<QImage>& pictures);

/// One picture of macOS' container: its type, of four letters, and its bytes.
struct IcnsElement
{
    QByteArray type;
    QByteArray data;
};

[[nodiscard]] QByteArray icns(const QList<IcnsElement>& elements);

/// Red, green and blue of a picture, one after the other, in the run lengths that the container's 24-bit types have.
[[nodiscard]] QByteArray icnsColors(const QImage& picture);
/// Its opacity, a byte a pixel.
[[nodiscard]] QByteArray icnsMask(const QImage& picture);

} // namespace abissora::icons
