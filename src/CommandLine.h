// SPDX-License-Identifier: MIT
#pragma once

#include "Equipment.h"

#include <QString>
#include <QStringList>
#include <optional>
#include <tl/expected.hpp>

namespace abissora {

/// What is done without a window, and so without a screen.
enum class Command { ListStates, Check, Restore, Backup, Export, Import, Print, Due };

/// What the main window begins with; the desktop's own actions ask for it.
enum class Wish {
    NewItem, ///< the form of a new item
    ShowDue, ///< the page of what is due
};

struct CommandLine
{
    bool help = false;
    bool version = false;
    QString dataDir;  ///< empty when not given
    QString snapshot; ///< empty when not given
    std::optional<Wish> wish;
    std::optional<Command> command;
    QString operand;                      ///< of the command: a state, a file; empty for one without
    bool records = false;                 ///< of an export: the records instead of the items
    bool yes = false;                     ///< of an import: store it
    bool json = false;                    ///< of what is due: for programs
    std::int64_t days = dueThresholdDays; ///< of what is due: how far ahead
    QString item;                         ///< of printing: the name of the items; empty when not given

    /// `arguments` without the program's name. The error is a sentence for the person.
    [[nodiscard]] static tl::expected<CommandLine, QString> parse(const QStringList& arguments);
    /// Whether they ask for a command, told before they are understood.
    [[nodiscard]] static bool nameCommand(const QStringList& arguments);

    /// A wish in one word, as one process tells it to another, and back; a word of another release is nothing.
    [[nodiscard]] static QString wordFor(Wish wish);
    [[nodiscard]] static std::optional<Wish> wishFor(const QString& word);

    [[nodiscard]] static QString helpText();
    [[nodiscard]] static QString versionText();
};

} // namespace abissora
