// SPDX-License-Identifier: MIT
#pragma once

#include "Equipment.h"
#include "EquipmentTypeModel.h"
#include "Literals.h"
#include "NamedColor.h"

namespace abissora {

class EquipmentTypeViewModel;

/// The picture and colour that stand for a kind of equipment.
struct TypeAppearance
{
    QString icon;
    NamedColor color = NamedColor::primary;

    friend bool operator==(const TypeAppearance&, const TypeAppearance&) = default;
};

inline const QString unknownTypeIcon = u"questionmark.circle.fill"_s;

/// Of a type record; an empty icon is shown as unknown.
[[nodiscard]] TypeAppearance appearanceOf(const EquipmentTypeModel& type);
/// Of a built-in kind whose name no type record carries.
[[nodiscard]] TypeAppearance builtInAppearance(EquipmentType type);
/// Of the type record that the item names, else of its built-in kind.
[[nodiscard]] TypeAppearance appearanceOf(const Equipment& item, const EquipmentTypeViewModel& types);

} // namespace abissora
