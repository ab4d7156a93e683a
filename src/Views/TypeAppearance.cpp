// SPDX-License-Identifier: MIT
#include "TypeAppearance.h"

#include "EquipmentTypeViewModel.h"

namespace abissora {

TypeAppearance appearanceOf(const EquipmentTypeModel& type)
{
    return {type.icon.isEmpty() ? unknownTypeIcon : type.icon, type.colorValue()};
}

TypeAppearance builtInAppearance(EquipmentType type)
{
    switch (type) {
    case EquipmentType::regulator:
        return {QStringLiteral("dive.regulator"), NamedColor::blue};
    case EquipmentType::bcd:
        return {QStringLiteral("dive.bcd"), NamedColor::orange};
    case EquipmentType::cylinder:
        return {QStringLiteral("dive.tank"), NamedColor::gray};
    case EquipmentType::mask:
        return {QStringLiteral("dive.mask"), NamedColor::purple};
    case EquipmentType::fins:
        return {QStringLiteral("dive.fins"), NamedColor::green};
    case EquipmentType::wetsuit:
        return {QStringLiteral("dive.wetsuit"), NamedColor::red};
    case EquipmentType::drysuit:
        return {QStringLiteral("dive.drysuit"), NamedColor::indigo};
    case EquipmentType::computer:
        return {QStringLiteral("dive.computer"), NamedColor::cyan};
    case EquipmentType::other:
        break;
    }
    return {unknownTypeIcon, NamedColor::secondary};
}

TypeAppearance appearanceOf(const Equipment& item, const EquipmentTypeViewModel& types)
{
    const auto type = types.getTypeByName(item.displayTypeName());
    return type ? appearanceOf(*type) : builtInAppearance(item.type);
}

} // namespace abissora
