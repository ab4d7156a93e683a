// SPDX-License-Identifier: MIT
#pragma once

/// Lengths in device-independent pixels.
namespace abissora::metrics {

inline constexpr int spaceXS = 4;
inline constexpr int spaceS = 8;
inline constexpr int spaceM = 12;
inline constexpr int spaceL = 16;
inline constexpr int spaceXL = 24;

inline constexpr int controlRadius = 7;
inline constexpr int cardRadius = 10;
inline constexpr int sheetRadius = 12;

/// At the usual text size; larger text makes controls higher, see controlHeight() in TypeScale.h.
inline constexpr int controlHeight = 30;
inline constexpr int controlPadding = 12;
inline constexpr int fieldPadding = 8; ///< a line edit adds two of its own
inline constexpr int iconSize = 16;
inline constexpr int focusRingWidth = 2;

} // namespace abissora::metrics
