// SPDX-License-Identifier: MIT
#pragma once

#include "Equipment.h"
#include "EquipmentTypeModel.h"
#include "RegisterDocument.h"
#include "UpdateInfo.h"

#include <QByteArray>
#include <tl/expected.hpp>

namespace abissora {

/// Where in a document and why records could not be written or read.
struct JsonError
{
    QString path; ///< "[2].maintenanceHistory[0].cost"; empty for the document as a whole
    QString message;

    [[nodiscard]] QString description() const;
    friend bool operator==(const JsonError&, const JsonError&) = default;
};

/// The stored form: a JSON array of objects, UTF-8, members in declaration order, absent optional members left out.
/// Identifiers are canonical UUIDs (upper case when written), dates ISO 8601 in UTC with whole seconds and "Z" (the
/// milliseconds are cut off), years 1 to 9999.
///
/// Reading is strict: every member that is not optional is required and no default is substituted. Unknown members are
/// ignored, the last of several equal members counts, an integer may be written 57.0. A byte order mark or a NUL byte
/// is an error.
[[nodiscard]] tl::expected<QByteArray, JsonError> encode(const QList<Equipment>& equipment);
[[nodiscard]] tl::expected<QByteArray, JsonError> encode(const QList<EquipmentTypeModel>& types);

[[nodiscard]] tl::expected<QList<Equipment>, JsonError> decodeEquipment(const QByteArray& json);
[[nodiscard]] tl::expected<QList<EquipmentTypeModel>, JsonError> decodeTypes(const QByteArray& json);

/// The records, and whether the document says more than they can hold: writing them would lose it.
template <typename Record>
struct Decoded
{
    QList<Record> records;
    bool hasUnknownMembers = false;
};

/// A long register is read in parts at the same time.
[[nodiscard]] tl::expected<Decoded<Equipment>, JsonError> readEquipment(const QByteArray& json);
[[nodiscard]] tl::expected<Decoded<EquipmentTypeModel>, JsonError> readTypes(const QByteArray& json);

/// What can be read of a damaged document: the records that are whole and valid, in order, the number of all that
/// were begun, and every value that cannot be read. A byte order mark is passed over, the text ends at a NUL byte.
template <typename Record>
struct Salvaged
{
    QList<Record> records;
    qsizetype total = 0;
    QList<JsonError> errors; ///< bounded: beyond a thousand they say nothing new
};

[[nodiscard]] Salvaged<Equipment> salvageEquipment(const QByteArray& json);
[[nodiscard]] Salvaged<EquipmentTypeModel> salvageTypes(const QByteArray& json);

/// One JSON object, its lists in the stored form. Reading it says nothing of its format and version.
[[nodiscard]] tl::expected<QByteArray, JsonError> encode(const RegisterDocument& document);
[[nodiscard]] tl::expected<RegisterDocument, JsonError> decodeRegisterDocument(const QByteArray& json);
[[nodiscard]] tl::expected<RegisterHead, JsonError> decodeRegisterHead(const QByteArray& json);

/// One JSON object, read as strictly: the build is a whole number of 64 bits, only the release notes may be missing or
/// null.
[[nodiscard]] tl::expected<UpdateManifest, JsonError> decodeManifest(const QByteArray& json);

/// The manifest's form: the same members under the same names.
[[nodiscard]] QByteArray encode(const UpdateInfo& info);
[[nodiscard]] tl::expected<UpdateInfo, JsonError> decodeUpdateInfo(const QByteArray& json);

} // namespace abissora
