// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace abissora::test {

/// What is wrong with how a file is imported; empty when nothing is. It is either refused with one short line, or shows
/// rows whose faults are short lines; what can be chosen of them can be stored, goes out in every form, and the items
/// among it come in again as they were.
[[nodiscard]] QString faultWithImport(const QByteArray& file);

} // namespace abissora::test
