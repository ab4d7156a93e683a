// SPDX-License-Identifier: MIT
#include "RecordProperties.h"

#include "RecordJson.h"

namespace abissora::test {

namespace {

QString faultWithError(const JsonError& error)
{
    constexpr qsizetype longest = 500;
    const QString description = error.description();
    if (error.message.isEmpty() || description.size() > longest)
        return QStringLiteral("the error's description has the wrong length: ") + description;
    return {};
}

template <typename Decode>
QString fault(const QByteArray& json, Decode decode)
{
    const auto records = decode(json);
    if (!records)
        return faultWithError(records.error());
    const auto encoded = encode(*records);
    if (!encoded)
        return QStringLiteral("what was read cannot be written: ") + encoded.error().description();
    const auto again = decode(*encoded);
    if (!again)
        return QStringLiteral("what was written cannot be read: ") + again.error().description();
    if (*again != *records)
        return QStringLiteral("reading what was written gives other records");
    if (encode(*again) != encoded)
        return QStringLiteral("the same records are written in another way");
    return {};
}

} // namespace

QString faultWithEquipment(const QByteArray& json)
{
    return fault(json, decodeEquipment);
}

QString faultWithTypes(const QByteArray& json)
{
    return fault(json, decodeTypes);
}

} // namespace abissora::test
