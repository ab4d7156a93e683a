// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace abissora::help {

/// Every newline character of Unicode ends a line, so a CR LF pair has an empty line in between.
[[nodiscard]] QStringList lines(const QString& text);

/// Without spaces and tabs at both ends; no other white space is taken.
[[nodiscard]] QString withoutBlanks(const QString& text);
/// Without newline characters too.
[[nodiscard]] QString withoutBlanksAndNewlines(const QString& text);

} // namespace abissora::help
