// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <tl/expected.hpp>

namespace abissora {

struct CommandLine
{
    bool help = false;
    bool version = false;
    QString dataDir;  ///< empty when not given
    QString snapshot; ///< empty when not given
    bool listStates = false;
    bool check = false;
    QString restore; ///< empty when not given

    /// What is done without a window, and so without a screen.
    [[nodiscard]] bool isCommand() const { return listStates || check || !restore.isEmpty(); }

    /// `arguments` without the program's name. The error is a sentence for the person.
    [[nodiscard]] static tl::expected<CommandLine, QString> parse(const QStringList& arguments);

    [[nodiscard]] static QString helpText();
    [[nodiscard]] static QString versionText();
};

} // namespace abissora
