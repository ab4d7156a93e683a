// SPDX-License-Identifier: MIT
#include "Gallery.h"

#include "Gui.h"
#include "Literals.h"
#include "Pointer.h"
#include "Scenes.h"
#include "Theme.h"

#include <QPixmap>

namespace abissora::gallery {

namespace {

bool renderScene(const Scene& scene, const QString& schemeName, const QDir& folder)
{
    const auto widget = scene.make();
    widget->show();
    test::settle();
    const QString name = u"%1-%2@%3.png"_s.arg(scene.name, schemeName).arg(qApp->devicePixelRatio());
    return widget->grab().save(folder.filePath(name));
}

} // namespace

bool render(const QList<Scene>& scenes, const QDir& folder)
{
    bool written = true;
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        applyTheme(*qApp, scheme);
        test::useThePointer();
        const QString name = scheme == Scheme::Light ? u"light"_s : u"dark"_s;
        for (const Scene& scene : scenes)
            written = renderScene(scene, name, folder) && written;
    }
    return written;
}

QList<Scene> allScenes()
{
    return controlScenes() + componentScenes() + sheetScenes() + restoreScenes() + importScenes() + printScenes() +
           screenScenes() + detailScenes() + typeScenes() + helpScenes() + overviewScenes() + settingsScenes() +
           updateScenes();
}

Scene sceneNamed(const QString& name)
{
    const QList<Scene> scenes = allScenes();
    const auto found = std::ranges::find(scenes, name, &Scene::name);
    if (found == scenes.end())
        qFatal("no scene called %s", qPrintable(name));
    return *found;
}

} // namespace abissora::gallery
