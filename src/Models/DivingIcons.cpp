// SPDX-License-Identifier: MIT
#include "DivingIcons.h"

#include <map>

namespace abissora {

namespace {

/// One name per case, in declaration order.
constexpr std::array displayNames{
    QStringView(u"Erogatore"),
    QStringView(u"GAV"),
    QStringView(u"Bombola"),
    QStringView(u"Maschera"),
    QStringView(u"Pinne"),
    QStringView(u"Muta"),
    QStringView(u"Muta Stagna"),
    QStringView(u"Computer Sub"),
    QStringView(u"Torcia"),
    QStringView(u"Bussola"),
    QStringView(u"Profondimetro"),
    QStringView(u"Manometro"),
    QStringView(u"Coltello"),
    QStringView(u"Bozzello"),
    QStringView(u"Sacco Sollevamento"),
    QStringView(u"Cintura Zavorra"),
    QStringView(u"Salvagente"),
    QStringView(u"Pronto Soccorso"),
    QStringView(u"Ossigeno"),
    QStringView(u"Fischietto"),
    QStringView(u"Bandiera Sub"),
    QStringView(u"Comunicatore"),
    QStringView(u"Campana Sub"),
    QStringView(u"Fotocamera Sub"),
    QStringView(u"Action Cam"),
    QStringView(u"Borsa Sub"),
    QStringView(u"Borsa Pinne"),
    QStringView(u"Kit Riparazione"),
    QStringView(u"Ricambi"),
    QStringView(u"Subacquea"),
    QStringView(u"Apnea"),
    QStringView(u"Snorkeling"),
    QStringView(u"Tecnica"),
    QStringView(u"Grotta"),
    QStringView(u"Relitto"),
    QStringView(u"Notturna"),
    QStringView(u"Profonda"),
    QStringView(u"Manutenzione"),
    QStringView(u"Pulizia"),
    QStringView(u"Test"),
    QStringView(u"Riparazione"),
    QStringView(u"Ispezione"),
    QStringView(u"Calibrazione"),
    QStringView(u"Altro"),
    QStringView(u"Accessorio"),
    QStringView(u"Personalizzato"),
};
static_assert(displayNames.size() == RawValues<DivingIcons>::entries.size());

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

QString displayName(DivingIcons icon)
{
    return displayNames.at(static_cast<std::size_t>(icon)).toString();
}

QString category(DivingIcons icon)
{
    const auto section =
        std::find_if(sections.begin(), sections.end(), [icon](const Section& s) { return icon <= s.last; });
    return section->title.toString();
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
