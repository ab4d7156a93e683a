// SPDX-License-Identifier: MIT
#include "RegisterParts.h"

namespace abissora::json {

namespace {

constexpr QByteArrayView between("},{\"id\":\"");
constexpr qsizetype idLength = 36;
constexpr QByteArrayView behindId("\",\"name\":"); // the records of an item go on otherwise

/// The comma between two items at or behind a place; -1 when there is none.
qsizetype boundary(QByteArrayView json, qsizetype from)
{
    for (qsizetype at = json.indexOf(between, from); at >= 0; at = json.indexOf(between, at + 1)) {
        const QByteArrayView id = json.sliced(at + between.size());
        if (id.size() > idLength && id.sliced(idLength).startsWith(behindId))
            return at + 1;
    }
    return -1;
}

} // namespace

QList<QByteArrayView> partsOf(QByteArrayView json, qsizetype count)
{
    if (json.size() < 2 || json.front() != '[' || json.back() != ']')
        return {};
    QByteArrayView rest = json.sliced(1).chopped(1);
    QList<QByteArrayView> parts;
    for (qsizetype left = count; left > 1; --left) {
        const qsizetype comma = boundary(rest, rest.size() / left);
        if (comma < 0)
            break;
        parts.append(rest.first(comma));
        rest = rest.sliced(comma + 1);
    }
    parts.append(rest);
    return parts;
}

} // namespace abissora::json
