// SPDX-License-Identifier: MIT
#include "TypeAppearance.h"

#include "EquipmentTypeViewModel.h"
#include "Literals.h"

namespace abissora {

TypeAppearance appearanceOf(const EquipmentTypeModel& type)
{
    return {type.icon.isEmpty() ? unknownTypeIcon : type.icon, type.colorValue()};
}

TypeAppearance builtInAppearance(EquipmentType type)
{
    switch (type) {
    case EquipmentType::regulator:
        return {u"dive.regulator"_s, NamedColor::blue};
    case EquipmentType::bcd:
        return {u"dive.bcd"_s, NamedColor::orange};
    case EquipmentType::cylinder:
        return {u"dive.tank"_s, NamedColor::gray};
    case EquipmentType::mask:
        return {u"dive.mask"_s, NamedColor::purple};
    case EquipmentType::fins:
        return {u"dive.fins"_s, NamedColor::green};
    case EquipmentType::wetsuit:
        return {u"dive.wetsuit"_s, NamedColor::red};
    case EquipmentType::drysuit:
        return {u"dive.drysuit"_s, NamedColor::indigo};
    case EquipmentType::computer:
        return {u"dive.computer"_s, NamedColor::cyan};
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
