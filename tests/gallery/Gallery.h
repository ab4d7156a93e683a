// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QList>
#include <QString>
#include <functional>
#include <memory>

class QWidget;

namespace abissora::gallery {

/// Something to look at. The factory is called once for every picture, with the scheme already in force.
struct Scene
{
    QString name; ///< also the first part of the file names
    std::function<std::unique_ptr<QWidget>()> make;
};

/// Writes name-scheme@scale.png for every scene in both schemes, at the scale that the application runs at. False when
/// a picture could not be written.
[[nodiscard]] bool render(const QList<Scene>& scenes, const QDir& folder);

} // namespace abissora::gallery
