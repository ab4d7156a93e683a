// SPDX-License-Identifier: MIT
#include "Scenes.h"

#include <QApplication>
#include <QFont>
#include <QProcess>
#include <cstdio>

namespace {

constexpr double fixedPointSize = 10;
constexpr const char* scaleVariable = "QT_SCALE_FACTOR";

/// The scale belongs to the whole process, so each has one of its own.
int renderAtEveryScale(const char* program, const QString& folder)
{
    int result = 0;
    for (const char* scale : {"1", "1.5", "2"}) {
        qputenv(scaleVariable, scale);
        result |= QProcess::execute(QString::fromLocal8Bit(program), {folder});
    }
    return result;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2 || !QDir().mkpath(QString::fromLocal8Bit(argv[1]))) {
        std::fputs("usage: abissora-gallery DIR\n", stderr);
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    if (!qEnvironmentVariableIsSet(scaleVariable))
        return renderAtEveryScale(argv[0], folder);

    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QFont font = QApplication::font();
    font.setPointSizeF(fixedPointSize);
    QApplication::setFont(font);
    using namespace abissora::gallery;
    const QList<Scene> scenes = controlScenes() + componentScenes() + sheetScenes() + screenScenes() + detailScenes() +
                                typeScenes() + helpScenes() + overviewScenes() + settingsScenes() + updateScenes();
    return render(scenes, QDir(folder)) ? 0 : 1;
}
