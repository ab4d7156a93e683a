// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QList>

namespace abissora::json {

/// The elements of a stored list of items in so many parts of about the same size, without the brackets of the list and
/// the commas between the parts. Each begins where an item seems to begin: only when all of them can be read as lists
/// are they the list, and then they are, whatever stands in its texts. Fewer parts, or one, where no such places are.
///
/// Nothing when `json` does not begin and end as a list.
[[nodiscard]] QList<QByteArrayView> partsOf(QByteArrayView json, qsizetype count);

} // namespace abissora::json
