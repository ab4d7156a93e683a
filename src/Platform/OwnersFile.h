// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace abissora {

/// Makes sure that a file which a class of the toolkit is about to write is readable by its owner only, as all others
/// are, whatever the process's umask: it is made, empty, with its folder where it is missing. What cannot be done is
/// left to that class.
void makeOwnersFile(const QString& path);

} // namespace abissora
