// SPDX-License-Identifier: MIT
#pragma once

#include "RawValues.h"

namespace abissora {

/// The built-in kinds of equipment. Their raw values are both the stored and the displayed text.
enum class EquipmentType { regulator, bcd, cylinder, mask, fins, wetsuit, drysuit, computer, other };

template <>
struct RawValues<EquipmentType>
{
    using Entry = RawValueEntry<EquipmentType>;
    static constexpr std::array entries{
        Entry{EquipmentType::regulator, u"Erogatore"}, Entry{EquipmentType::bcd, u"GAV"},
        Entry{EquipmentType::cylinder, u"Bombola"},    Entry{EquipmentType::mask, u"Maschera"},
        Entry{EquipmentType::fins, u"Pinne"},          Entry{EquipmentType::wetsuit, u"Muta"},
        Entry{EquipmentType::drysuit, u"Muta Stagna"}, Entry{EquipmentType::computer, u"Computer Subacqueo"},
        Entry{EquipmentType::other, u"Altro"},
    };
};

} // namespace abissora
