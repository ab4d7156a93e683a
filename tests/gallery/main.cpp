// SPDX-License-Identifier: MIT
#include "KeptPictures.h"
#include "Literals.h"
#include "Scenes.h"

#include <QApplication>
#include <QProcess>
#include <cstdio>

namespace {

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
    using namespace abissora;
    using namespace abissora::gallery;
    const QString argument = argc == 2 ? QString::fromLocal8Bit(argv[1]) : QString();
    const bool refreshes = argument == "--refresh"_L1;
    if (argument.isEmpty() || (!refreshes && !QDir().mkpath(argument))) {
        std::fputs("usage: abissora-gallery DIR | --refresh\n", stderr);
        return 2;
    }
    if (refreshes)
        qunsetenv(scaleVariable);
    else if (!qEnvironmentVariableIsSet(scaleVariable))
        return renderAtEveryScale(argv[0], argument);

    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" TEST_SCREEN); // as the tests have it
    const QApplication application(argc, argv);
    pinAppearance();
    const bool written =
        refreshes ? refresh(QDir(QString::fromUtf8(KEPT_PICTURES))) : render(allScenes(), QDir(argument));
    return written ? 0 : 1;
}
