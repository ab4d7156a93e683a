// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace abissora {

/// u"text"_s is a QString, "text"_L1 a Latin-1 view, in every file of the program.
using namespace Qt::StringLiterals;

} // namespace abissora
