// SPDX-License-Identifier: MIT
#pragma once

#include "Theme.h"

#include <QImage>
#include <QList>
#include <QString>
#include <functional>

class QDir;
class QWidget;

namespace abissora::gallery {

/// A scene whose picture lies in the folder "kept", so that a change of its looks is seen.
struct KeptPicture
{
    QString scene;
    Scheme scheme = Scheme::Light;
    int scale = 1;

    [[nodiscard]] QString fileName() const;
};

[[nodiscard]] QList<KeptPicture> keptPictures();

/// Gives the application the font, the size and the quiet cursor of the kept pictures.
void pinAppearance(double pointSize = 10);

/// `change` may alter the scene once it stands.
[[nodiscard]] QImage draw(const KeptPicture& picture, const std::function<void(QWidget&)>& change = {});

/// Draws all of them anew and removes those that are kept no longer. False when one could not be written.
[[nodiscard]] bool refresh(const QDir& folder);

} // namespace abissora::gallery
