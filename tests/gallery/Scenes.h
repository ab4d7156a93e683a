// SPDX-License-Identifier: MIT
#pragma once

#include "Gallery.h"

namespace abissora::gallery {

[[nodiscard]] QList<Scene> controlScenes();
[[nodiscard]] QList<Scene> componentScenes();
[[nodiscard]] QList<Scene> settingsScenes();
[[nodiscard]] QList<Scene> sheetScenes();
[[nodiscard]] QList<Scene> screenScenes();
[[nodiscard]] QList<Scene> detailScenes();
[[nodiscard]] QList<Scene> typeScenes();
[[nodiscard]] QList<Scene> helpScenes();
[[nodiscard]] QList<Scene> overviewScenes();
[[nodiscard]] QList<Scene> updateScenes();
[[nodiscard]] QList<Scene> restoreScenes();
[[nodiscard]] QList<Scene> importScenes();
[[nodiscard]] QList<Scene> printScenes();

[[nodiscard]] QList<Scene> allScenes();
/// Ends the program when there is no scene of that name.
[[nodiscard]] Scene sceneNamed(const QString& name);

} // namespace abissora::gallery
