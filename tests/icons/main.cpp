// SPDX-License-Identifier: MIT
#include "IconFiles.h"

#include <QGuiApplication>
#include <cstdio>

int main(int argc, char** argv)
{
    if (argc != 2 || QByteArrayView(argv[1]) != "--refresh") {
        std::fputs("usage: abissora-icons --refresh\n", stderr);
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (!abissora::icons::refresh(QDir(QStringLiteral(ICON_FILES)))) {
        std::fputs("the files in " ICON_FILES " could not be written\n", stderr);
        return 1;
    }
    return 0;
}
