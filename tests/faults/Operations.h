// SPDX-License-Identifier: MIT
#pragma once

#include "ApplicationDirectories.h"
#include "Equipment.h"

namespace abissora::test {

/// What is done to a register that was prepared for it.
enum class Operation { save, firstSaveOfDay, attach, deleteRecord, deleteItem, deleteType, prune, restore, start };

inline constexpr std::array allOperations{Operation::save,         Operation::firstSaveOfDay, Operation::attach,
                                          Operation::deleteRecord, Operation::deleteItem,     Operation::deleteType,
                                          Operation::prune,        Operation::restore,        Operation::start};

[[nodiscard]] const char* nameOf(Operation operation);

/// Three items with records and documents, types, settings, a few earlier states, one of them of two items fewer.
void prepare(const ApplicationDirectories& directories, Operation operation);

/// As the program does it from its start on: locks, clears up, loads, then the operation itself, between `begin` and
/// `end`. What failed to be stored is then repeated once; true when nothing is left to be stored.
bool perform(const ApplicationDirectories& directories, Operation operation, const std::function<void()>& begin,
             const std::function<void()>& end);

/// What a new start finds.
struct Finding
{
    QStringList complaints; ///< what must not be
    QByteArray state;       ///< register, types and settings
};

/// Starts on the folder and looks at everything: it can be locked, what is stored can be read, every document that a
/// record names is there with its content, none was lost, nothing unfinished is left, every earlier state reads.
[[nodiscard]] Finding inspect(const ApplicationDirectories& directories);

} // namespace abissora::test
