// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

namespace abissora::gallery {

/// Two pictures of one scene, compared block by block. Another version of the font renderer moves the strokes of
/// letters a little and makes them thicker or thinner; what a person would call another picture gives blocks another
/// ground, or ink where there was none.
struct Comparison
{
    int differing = 0; ///< blocks
    int blocks = 0;    ///< 0 when the pictures are not equally large
    QImage difference; ///< the drawn picture, paled, with the differing blocks marked

    [[nodiscard]] bool alike() const;
    /// "12 of 4000 blocks differ"
    [[nodiscard]] QString text() const;
};

/// The side of a block in logical pixels; the pictures know their scale by their device pixel ratio.
inline constexpr int blockSide = 16;

[[nodiscard]] Comparison compare(const QImage& kept, const QImage& drawn);

} // namespace abissora::gallery
