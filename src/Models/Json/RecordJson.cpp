// SPDX-License-Identifier: MIT
#include "RecordJson.h"

#include "Literals.h"
#include "RecordReader.h"
#include "RecordWriter.h"
#include "RegisterParts.h"

#include <algorithm>
#include <future>
#include <system_error>
#include <thread>
#include <vector>

namespace abissora {

namespace {

template <typename Value>
tl::expected<QByteArray, JsonError> encodeValue(const Value& value)
{
    try {
        json::RecordWriter writer;
        writer.write(value);
        return writer.take();
    } catch (const json::EncodingFailure& failure) {
        return tl::unexpected(failure.error);
    }
}

template <typename Value>
tl::expected<Value, JsonError> decode(const QByteArray& text)
{
    Value value;
    if (auto error = json::readInto(&value, json::SlotOf<Value>::slot, text))
        return tl::unexpected(std::move(*error));
    return value;
}

/// Reads a list with one of the reader's functions.
template <typename Record, typename Text, typename ReadInto>
tl::expected<Decoded<Record>, JsonError> read(const Text& text, ReadInto readInto)
{
    Decoded<Record> decoded;
    json::ReadNotes notes;
    if (auto error = readInto(&decoded.records, json::SlotOf<QList<Record>>::slot, text, &notes))
        return tl::unexpected(std::move(*error));
    decoded.hasUnknownMembers = notes.unknownMembers;
    return decoded;
}

/// A part of a long list takes so many bytes at least: less is not worth a thread.
constexpr qsizetype leastPart = qsizetype{128} * 1024;
constexpr qsizetype mostParts = 4;

using Part = tl::expected<Decoded<Equipment>, JsonError>;

Part readPart(QByteArrayView elements)
{
    return read<Equipment>(elements, json::readElementsInto);
}

Part joined(Part first, Part second)
{
    if (!first || !second)
        return first ? second : first;
    first->records.append(std::move(second->records));
    first->hasUnknownMembers = first->hasUnknownMembers || second->hasUnknownMembers;
    return first;
}

/// An error when there is one part only, when one cannot be read, which then may be none, or when no thread can be had.
Part readInParts(const QByteArray& json)
{
    const auto processors = static_cast<qsizetype>(std::thread::hardware_concurrency());
    const auto parts = json::partsOf(json, std::min({mostParts, processors, json.size() / leastPart}));
    if (parts.size() < 2)
        return tl::unexpected(JsonError());
    try {
        std::vector<std::future<Part>> others;
        for (const QByteArrayView part : parts.sliced(1))
            others.push_back(std::async(std::launch::async, readPart, part));
        Part whole = readPart(parts.first());
        for (auto& other : others)
            whole = joined(std::move(whole), other.get());
        return whole;
    } catch (const std::system_error&) {
        return tl::unexpected(JsonError());
    }
}

template <typename Record>
Salvaged<Record> salvage(const QByteArray& text)
{
    Salvaged<Record> salvaged;
    salvaged.total = json::salvageInto(&salvaged.records, json::SlotOf<QList<Record>>::slot, text, salvaged.errors);
    return salvaged;
}

} // namespace

QString JsonError::description() const
{
    return path.isEmpty() ? message : path + u": "_s + message;
}

tl::expected<QByteArray, JsonError> encode(const QList<Equipment>& equipment)
{
    return encodeValue(equipment);
}

tl::expected<QByteArray, JsonError> encode(const QList<EquipmentTypeModel>& types)
{
    return encodeValue(types);
}

tl::expected<QList<Equipment>, JsonError> decodeEquipment(const QByteArray& json)
{
    return readEquipment(json).map([](Decoded<Equipment>&& decoded) { return std::move(decoded.records); });
}

tl::expected<QList<EquipmentTypeModel>, JsonError> decodeTypes(const QByteArray& json)
{
    return decode<QList<EquipmentTypeModel>>(json);
}

tl::expected<Decoded<Equipment>, JsonError> readEquipment(const QByteArray& json)
{
    if (auto decoded = readInParts(json))
        return std::move(*decoded);
    return read<Equipment>(json, json::readInto);
}

tl::expected<Decoded<EquipmentTypeModel>, JsonError> readTypes(const QByteArray& json)
{
    return read<EquipmentTypeModel>(json, json::readInto);
}

Salvaged<Equipment> salvageEquipment(const QByteArray& json)
{
    return salvage<Equipment>(json);
}

Salvaged<EquipmentTypeModel> salvageTypes(const QByteArray& json)
{
    return salvage<EquipmentTypeModel>(json);
}

tl::expected<QByteArray, JsonError> encode(const RegisterDocument& document)
{
    return encodeValue(document);
}

tl::expected<RegisterDocument, JsonError> decodeRegisterDocument(const QByteArray& json)
{
    return decode<RegisterDocument>(json);
}

tl::expected<RegisterHead, JsonError> decodeRegisterHead(const QByteArray& json)
{
    return decode<RegisterHead>(json);
}

tl::expected<UpdateManifest, JsonError> decodeManifest(const QByteArray& json)
{
    return decode<UpdateManifest>(json);
}

QByteArray encode(const UpdateInfo& info)
{
    json::RecordWriter writer;
    writer.write(UpdateManifest{info.version, info.build,
                                QString::fromLatin1(info.downloadURL.toEncoded(QUrl::FullyEncoded)),
                                info.releaseNotes});
    return writer.take();
}

tl::expected<UpdateInfo, JsonError> decodeUpdateInfo(const QByteArray& json)
{
    const auto manifest = decodeManifest(json);
    if (!manifest)
        return tl::unexpected(manifest.error());
    if (auto info = UpdateInfo::from(*manifest))
        return std::move(*info);
    return tl::unexpected(JsonError{u".downloadURL"_s, u"expected an address"_s});
}

} // namespace abissora
