// SPDX-License-Identifier: MIT
#include "RecordReader.h"

#include "RecordReceiver.h"

namespace abissora::json {

namespace {

using Parser = nlohmann::json;

constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF");

} // namespace

std::optional<JsonError> readInto(void* target, const Slot& slot, const QByteArray& json, ReadNotes* notes)
{
    // The parser itself would pass over both.
    if (json.startsWith(byteOrderMark))
        return JsonError{{}, u"the text begins with a byte order mark"_s};
    if (const qsizetype at = json.indexOf('\0'); at >= 0)
        return JsonError{{}, u"the text holds a NUL byte at position %1"_s.arg(at)};
    Receiver receiver(target, slot);
    Parser::sax_parse(json.constData(), json.constData() + json.size(), &receiver);
    if (notes)
        *notes = receiver.notes();
    return receiver.takeError();
}

qsizetype salvageInto(void* target, const Slot& slot, const QByteArray& json, QList<JsonError>& errors)
{
    // Files end in NUL bytes where a disk gave up.
    const qsizetype begin = json.startsWith(byteOrderMark) ? byteOrderMark.size() : 0;
    const qsizetype end = json.indexOf('\0', begin);
    Receiver receiver(target, slot, true);
    Parser::sax_parse(json.constData() + begin, json.constData() + (end < 0 ? json.size() : end), &receiver);
    errors = receiver.takeDropped();
    if (auto error = receiver.takeError())
        errors.append(std::move(*error));
    return receiver.elements();
}

} // namespace abissora::json
