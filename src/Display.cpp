// SPDX-License-Identifier: MIT
#include "Display.h"

#include <QtGlobal>
#include <cstdio>
#include <cstdlib>

namespace abissora {

namespace {

void handleMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message)
{
    if (type == QtFatalMsg) {
        std::fputs(qUtf8Printable(noDisplayText()), stderr);
        std::_Exit(noDisplayStatus);
    }
    // What the toolkit says on its way there is no help to the person.
    if (!message.contains(QLatin1String("qt.qpa")) && !message.contains(QLatin1String("platform plugin")) &&
        !message.contains(QLatin1String("could not connect to display")))
        std::fprintf(stderr, "%s\n", qUtf8Printable(message));
}

} // namespace

bool hasDisplay(const QStringList& arguments)
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") || arguments.contains(QLatin1String("-platform"));
#else
    Q_UNUSED(arguments)
    return true;
#endif
}

void explainMissingDisplay()
{
    qInstallMessageHandler(handleMessage);
}

QString noDisplayText()
{
    return QStringLiteral("Abissora non trova uno schermo su cui aprire la finestra; con «--snapshot FILE» la disegna "
                          "in un file PNG.\n");
}

} // namespace abissora
