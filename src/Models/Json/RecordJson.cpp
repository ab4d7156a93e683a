// SPDX-License-Identifier: MIT
#include "RecordJson.h"

#include "Literals.h"
#include "RecordReader.h"
#include "RecordWriter.h"

namespace abissora {

namespace {

template <typename Record>
tl::expected<QByteArray, JsonError> encodeRecords(const QList<Record>& records)
{
    try {
        json::RecordWriter writer;
        writer.write(records);
        return QByteArray::fromStdString(writer.text());
    } catch (const json::EncodingFailure& failure) {
        return tl::unexpected(failure.error);
    }
}

template <typename Record>
tl::expected<QList<Record>, JsonError> decodeRecords(const QByteArray& text)
{
    QList<Record> records;
    if (auto error = json::readInto(&records, json::SlotOf<QList<Record>>::slot, text))
        return tl::unexpected(std::move(*error));
    return records;
}

} // namespace

QString JsonError::description() const
{
    return path.isEmpty() ? message : path + u": "_s + message;
}

tl::expected<QByteArray, JsonError> encode(const QList<Equipment>& equipment)
{
    return encodeRecords(equipment);
}

tl::expected<QByteArray, JsonError> encode(const QList<EquipmentTypeModel>& types)
{
    return encodeRecords(types);
}

tl::expected<QList<Equipment>, JsonError> decodeEquipment(const QByteArray& json)
{
    return decodeRecords<Equipment>(json);
}

tl::expected<QList<EquipmentTypeModel>, JsonError> decodeTypes(const QByteArray& json)
{
    return decodeRecords<EquipmentTypeModel>(json);
}

} // namespace abissora
