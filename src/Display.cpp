// SPDX-License-Identifier: MIT
#include "Display.h"

#include "Literals.h"

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
    if (!message.contains("qt.qpa"_L1) && !message.contains("platform plugin"_L1) &&
        !message.contains("could not connect to display"_L1))
        std::fprintf(stderr, "%s\n", qUtf8Printable(message));
}

} // namespace

bool hasDisplay(const QStringList& arguments)
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") || arguments.contains("-platform"_L1);
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
    return u"Abissora non trova uno schermo su cui aprire la finestra; con «--snapshot FILE» la disegna "
           "in un file PNG.\n"_s;
}

} // namespace abissora
