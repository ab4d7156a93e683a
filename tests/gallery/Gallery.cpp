// SPDX-License-Identifier: MIT
#include "Gallery.h"

#include "Literals.h"
#include "Theme.h"

#include <QApplication>
#include <QPixmap>
#include <QWidget>

namespace abissora::gallery {

namespace {

bool renderScene(const Scene& scene, const QString& schemeName, const QDir& folder)
{
    const auto widget = scene.make();
    widget->show();
    // A changed text travels upward one layout at a time, each by an event of its own.
    for (int level = 0; level < 5; ++level)
        QApplication::processEvents();
    const QString name = u"%1-%2@%3.png"_s.arg(scene.name, schemeName).arg(qApp->devicePixelRatio());
    return widget->grab().save(folder.filePath(name));
}

} // namespace

bool render(const QList<Scene>& scenes, const QDir& folder)
{
    bool written = true;
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        applyTheme(*qApp, scheme);
        const QString name = scheme == Scheme::Light ? u"light"_s : u"dark"_s;
        for (const Scene& scene : scenes)
            written = renderScene(scene, name, folder) && written;
    }
    return written;
}

} // namespace abissora::gallery
