// SPDX-License-Identifier: MIT
#include "Scenes.h"

#include <QApplication>
#include <QFont>
#include <cstdio>

namespace {

constexpr double fixedPointSize = 10;

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 2 || !QDir().mkpath(arguments.at(1))) {
        std::fputs("usage: abissora-gallery DIR\n", stderr);
        return 2;
    }
    QFont font = QApplication::font();
    font.setPointSizeF(fixedPointSize);
    QApplication::setFont(font);

    using namespace abissora::gallery;
    return render(controlScenes() + componentScenes() + sheetScenes() + screenScenes(), QDir(arguments.at(1))) ? 0 : 1;
}
