// SPDX-License-Identifier: MIT
#include "RecordReader.h"

#include "RecordReceiver.h"

namespace abissora::json {

namespace {

using Parser = nlohmann::json;

constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF");

/// Walks through a text with a bracket before and one behind it, which are not there.
class Bracketed
{
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = char;

    static Bracketed begin(QByteArrayView text) { return {text, -1}; }
    static Bracketed end(QByteArrayView text) { return {text, text.size() + 1}; }

    char operator*() const { return m_at < 0 ? '[' : m_at < m_text.size() ? m_text[m_at] : ']'; }
    Bracketed& operator++()
    {
        ++m_at;
        return *this;
    }
    bool operator==(const Bracketed& other) const { return m_at == other.m_at; }

private:
    Bracketed(QByteArrayView text, qsizetype at)
        : m_text(text)
        , m_at(at)
    {}

    QByteArrayView m_text;
    qsizetype m_at;
};

/// The parser itself would pass over both.
std::optional<JsonError> strayBytes(QByteArrayView json)
{
    if (json.startsWith(byteOrderMark))
        return JsonError{{}, u"the text begins with a byte order mark"_s};
    if (const qsizetype at = json.indexOf('\0'); at >= 0)
        return JsonError{{}, u"the text holds a NUL byte at position %1"_s.arg(at)};
    return {};
}

template <typename Iterator>
std::optional<JsonError> parse(void* target, const Slot& slot, Iterator begin, Iterator end, ReadNotes* notes)
{
    Receiver receiver(target, slot);
    Parser::sax_parse(begin, end, &receiver);
    if (notes)
        *notes = receiver.notes();
    return receiver.takeError();
}

} // namespace

std::optional<JsonError> readInto(void* target, const Slot& slot, const QByteArray& json, ReadNotes* notes)
{
    if (auto error = strayBytes(json))
        return error;
    return parse(target, slot, json.cbegin(), json.cend(), notes);
}

std::optional<JsonError> readElementsInto(void* target, const Slot& slot, QByteArrayView elements, ReadNotes* notes)
{
    if (auto error = strayBytes(elements))
        return error;
    return parse(target, slot, Bracketed::begin(elements), Bracketed::end(elements), notes);
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
