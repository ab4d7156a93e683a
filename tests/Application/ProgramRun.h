// SPDX-License-Identifier: MIT
#pragma once

#include "Literals.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace abissora::test {

/// The real program in a process of its own, with a home of its own and, unless it is given one, without a screen.
class ProgramRun
{
public:
    ProgramRun()
    {
        for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "ABISSORA_DATA_DIR",
                                     "XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_CONFIG_HOME", "XDG_SESSION_TYPE"})
            environment.remove(QString::fromLatin1(variable));
        environment.insert(u"HOME"_s, home.path());
        environment.insert(u"XDG_RUNTIME_DIR"_s, m_sockets.path());
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
        environment.insert(u"LANGUAGE"_s, u"C"_s);
    }

    void start(const QStringList& arguments)
    {
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(ABISSORA_PROGRAM), arguments);
    }

    /// Handles events until the program has ended; false when it never does, or crashes.
    [[nodiscard]] bool ends()
    {
        constexpr int patience = 60'000; // ms; never used up
        const bool isOver = QTest::qWaitFor([this] { return process.state() == QProcess::NotRunning; }, patience);
        out += QString::fromUtf8(process.readAllStandardOutput());
        error += QString::fromUtf8(process.readAllStandardError());
        return isOver && process.error() != QProcess::FailedToStart && process.exitStatus() == QProcess::NormalExit;
    }

    /// -1 when it did not end as it should.
    [[nodiscard]] int run(const QStringList& arguments)
    {
        start(arguments);
        return ends() ? process.exitCode() : -1;
    }

    [[nodiscard]] QString path(const QString& name) const { return home.filePath(name); }

    QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    QProcess process;
    QString out;
    QString error;

private:
    QTemporaryDir m_sockets;
};

} // namespace abissora::test
