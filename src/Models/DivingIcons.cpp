// SPDX-License-Identifier: MIT
#include "DivingIcons.h"

#include <map>

namespace abissora {

namespace {

struct Section
{
    DivingIcons last;
    QStringView title;
};

/// Sections are runs of the enumeration.
constexpr std::array sections{
    Section{DivingIcons::diveComputer, u"Attrezzatura Principale"},
    Section{DivingIcons::weightBelt, u"Accessori"},
    Section{DivingIcons::safetyMarker, u"Sicurezza"},
    Section{DivingIcons::diveBell, u"Comunicazione"},
    Section{DivingIcons::spareParts, u"Varie"},
    Section{DivingIcons::deep, u"Tipi di Immersione"},
    Section{DivingIcons::calibration, u"Manutenzione"},
    Section{DivingIcons::custom, u"Altro"},
};

} // namespace

QString category(DivingIcons icon)
{
    return std::ranges::lower_bound(sections, icon, {}, &Section::last)->title.toString();
}

QList<DivingIconsCategory> categorizedDivingIcons()
{
    std::map<QString, QList<DivingIcons>> byTitle; // QString orders by code unit, which is the order wanted here
    for (const DivingIcons icon : allCases<DivingIcons>())
        byTitle[category(icon)].append(icon);
    QList<DivingIconsCategory> categories;
    for (const auto& [title, icons] : byTitle)
        categories.append({title, icons});
    return categories;
}

} // namespace abissora
