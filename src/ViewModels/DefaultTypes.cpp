// SPDX-License-Identifier: MIT
#include "DefaultTypes.h"

#include "AvailableColors.h"
#include "DivingIcons.h"

namespace abissora {

namespace {

struct DefaultType
{
    QStringView name;
    DivingIcons icon;
    AvailableColors color;
    std::int64_t serviceIntervalDays = 365;
};

constexpr std::array rows{
    DefaultType{u"Erogatore", DivingIcons::regulator, AvailableColors::blue},
    DefaultType{u"GAV", DivingIcons::bcd, AvailableColors::orange},
    DefaultType{u"Bombola", DivingIcons::tank, AvailableColors::gray},
    DefaultType{u"Maschera", DivingIcons::mask, AvailableColors::purple},
    DefaultType{u"Pinne", DivingIcons::fins, AvailableColors::green},
    DefaultType{u"Muta", DivingIcons::wetsuit, AvailableColors::red},
    DefaultType{u"Muta Stagna", DivingIcons::drysuit, AvailableColors::indigo},
    DefaultType{u"Computer Subacqueo", DivingIcons::diveComputer, AvailableColors::cyan, 730},
    DefaultType{u"Torcia", DivingIcons::diveLight, AvailableColors::yellow},
    DefaultType{u"Bussola", DivingIcons::compass, AvailableColors::teal},
    DefaultType{u"Profondimetro", DivingIcons::depthGauge, AvailableColors::mint},
    DefaultType{u"Manometro", DivingIcons::pressureGauge, AvailableColors::gray},
    DefaultType{u"Cintura Zavorra", DivingIcons::weightBelt, AvailableColors::brown},
    DefaultType{u"Kit Pronto Soccorso", DivingIcons::firstAid, AvailableColors::red},
    DefaultType{u"Ossigeno", DivingIcons::oxygen, AvailableColors::green},
    DefaultType{u"Altro", DivingIcons::other, AvailableColors::gray},
};

} // namespace

QList<EquipmentTypeModel> defaultTypes(IdGenerator& ids)
{
    QList<EquipmentTypeModel> types;
    types.reserve(static_cast<qsizetype>(rows.size()));
    for (const DefaultType& row : rows)
        types.append(
            {ids.next(), row.name.toString(), rawValue(row.icon), caseName(row.color), row.serviceIntervalDays, true});
    return types;
}

} // namespace abissora
