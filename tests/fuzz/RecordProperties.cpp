// SPDX-License-Identifier: MIT
#include "RecordProperties.h"

#include "Literals.h"
#include "RecordJson.h"

namespace abissora::test {

namespace {

QString faultWithError(const JsonError& error)
{
    constexpr qsizetype longest = 500;
    const QString description = error.description();
    if (error.message.isEmpty() || description.size() > longest)
        return u"the error's description has the wrong length: "_s + description;
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
        return u"what was read cannot be written: "_s + encoded.error().description();
    const auto again = decode(*encoded);
    if (!again)
        return u"what was written cannot be read: "_s + again.error().description();
    if (*again != *records)
        return u"reading what was written gives other records"_s;
    if (encode(*again) != encoded)
        return u"the same records are written in another way"_s;
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

QString faultWithRegister(const QByteArray& json)
{
    return fault(json, decodeRegisterDocument);
}

} // namespace abissora::test
