// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDir>
#include <QImage>
#include <QList>
#include <QMap>
#include <QString>

namespace abissora::icons {

/// The sides, in pixels, that an icon theme has the application's icon in.
[[nodiscard]] QList<int> themeSides();
/// Those that Windows' container has it in.
[[nodiscard]] QList<int> icoSides();

/// "abissora-48.png"
[[nodiscard]] QString pngName(int side);

/// The application's icon at its own pixels.
[[nodiscard]] QImage drawn(int side);

/// All files of packaging/icons: their bytes by their names.
[[nodiscard]] QMap<QString, QByteArray> iconFiles();

/// Writes them all. False as soon as one could not be written.
[[nodiscard]] bool refresh(const QDir& folder);

} // namespace abissora::icons
