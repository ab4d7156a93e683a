// SPDX-License-Identifier: MIT
#pragma once

#include "RecordJson.h"

#include <vector>

namespace abissora {

/// Gives what encode() gives, byte for byte, for one list after another that differs from it in few items: what lies
/// between the first and the last difference is written anew, the rest is kept from the time before. Holds the last
/// list and its text.
class EquipmentEncoder
{
public:
    /// An error leaves what is held as it is.
    [[nodiscard]] tl::expected<QByteArray, JsonError> encode(const QList<Equipment>& equipment);

private:
    /// The items from `first`, so many in both lists at the end being the same.
    struct Span
    {
        qsizetype first = 0;
        qsizetype sameBehind = 0;
    };
    [[nodiscard]] Span differences(const QList<Equipment>& equipment) const;
    void replace(const QList<Equipment>& equipment, Span span);

    QList<Equipment> m_equipment;
    QByteArray m_text = QByteArrayLiteral("[]");
    std::vector<qsizetype> m_begins; ///< of each item in the text
};

} // namespace abissora
