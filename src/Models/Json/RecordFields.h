// SPDX-License-Identifier: MIT
#pragma once

#include "Equipment.h"
#include "EquipmentTypeModel.h"
#include "RegisterDocument.h"
#include "UpdateInfo.h"

#include <string_view>
#include <tuple>

namespace abissora::json {

template <typename Record, typename Value>
struct Field
{
    std::string_view name;
    Value Record::*member;
};

template <typename Record, typename Value>
Field(const char*, Value Record::*) -> Field<Record, Value>;

/// The one description of each record that both the writer and the reader follow: its members in stored order.
/// A std::optional member may be missing.
template <typename Record>
struct Fields;

template <typename Record>
concept Described = requires
{
    Fields<Record>::all;
};

template <>
struct Fields<Maintenance>
{
    static constexpr std::tuple all{
        Field{"id", &Maintenance::id},
        Field{"date", &Maintenance::date},
        Field{"type", &Maintenance::type},
        Field{"description", &Maintenance::description},
        Field{"performedBy", &Maintenance::performedBy},
        Field{"cost", &Maintenance::cost},
        Field{"notes", &Maintenance::notes},
        Field{"nextServiceDate", &Maintenance::nextServiceDate},
        Field{"isCompleted", &Maintenance::isCompleted},
        Field{"receiptFileName", &Maintenance::receiptFileName},
        Field{"certificateFileName", &Maintenance::certificateFileName},
    };
};

template <>
struct Fields<Equipment>
{
    static constexpr std::tuple all{
        Field{"id", &Equipment::id},
        Field{"name", &Equipment::name},
        Field{"type", &Equipment::type},
        Field{"brand", &Equipment::brand},
        Field{"model", &Equipment::model},
        Field{"serialNumber", &Equipment::serialNumber},
        Field{"purchaseDate", &Equipment::purchaseDate},
        Field{"lastServiceDate", &Equipment::lastServiceDate},
        Field{"nextServiceDate", &Equipment::nextServiceDate},
        Field{"notes", &Equipment::notes},
        Field{"isActive", &Equipment::isActive},
        Field{"maintenanceHistory", &Equipment::maintenanceHistory},
        Field{"customTypeName", &Equipment::customTypeName},
    };
};

template <>
struct Fields<EquipmentTypeModel>
{
    static constexpr std::tuple all{
        Field{"id", &EquipmentTypeModel::id},
        Field{"name", &EquipmentTypeModel::name},
        Field{"icon", &EquipmentTypeModel::icon},
        Field{"color", &EquipmentTypeModel::color},
        Field{"serviceIntervalDays", &EquipmentTypeModel::serviceIntervalDays},
        Field{"isActive", &EquipmentTypeModel::isActive},
    };
};

template <>
struct Fields<RegisterDocument>
{
    static constexpr std::tuple all{
        Field{"format", &RegisterDocument::format},
        Field{"version", &RegisterDocument::version},
        Field{"program", &RegisterDocument::program},
        Field{"exported", &RegisterDocument::exported},
        Field{"equipmentTypes", &RegisterDocument::equipmentTypes},
        Field{"savedEquipment", &RegisterDocument::savedEquipment},
    };
};

template <>
struct Fields<RegisterHead>
{
    static constexpr std::tuple all{
        Field{"format", &RegisterHead::format},
        Field{"version", &RegisterHead::version},
        Field{"program", &RegisterHead::program},
    };
};

template <>
struct Fields<UpdateManifest>
{
    static constexpr std::tuple all{
        Field{"version", &UpdateManifest::version},
        Field{"build", &UpdateManifest::build},
        Field{"downloadURL", &UpdateManifest::downloadURL},
        Field{"releaseNotes", &UpdateManifest::releaseNotes},
    };
};

} // namespace abissora::json
