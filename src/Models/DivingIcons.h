// SPDX-License-Identifier: MIT
#pragma once

#include "RawValues.h"

#include <QList>

namespace abissora {

/// The pictures that a type can choose. The raw value is the identifier that a type record stores: an own picture when
/// it begins with "dive.", else a symbol of the symbol library.
enum class DivingIcons {
    regulator,
    bcd,
    tank,
    mask,
    fins,
    wetsuit,
    drysuit,
    diveComputer,
    diveLight,
    compass,
    depthGauge,
    pressureGauge,
    diveKnife,
    reel,
    liftBag,
    weightBelt,
    lifeJacket,
    firstAid,
    oxygen,
    whistle,
    safetyMarker,
    underwaterComms,
    diveBell,
    camera,
    gopro,
    diveBag,
    finsBag,
    repairKit,
    spareParts,
    scuba,
    freediving,
    snorkel,
    technical,
    cave,
    wreck,
    night,
    deep,
    service,
    cleaning,
    test,
    repair,
    inspection,
    calibration,
    other,
    accessory,
    custom,
};

template <>
struct RawValues<DivingIcons>
{
    struct Entry
    {
        DivingIcons value{};
        QStringView rawValue;
        QStringView displayName;
    };

    static constexpr std::array entries{
        Entry{DivingIcons::regulator, u"dive.regulator", u"Erogatore"},
        Entry{DivingIcons::bcd, u"dive.bcd", u"GAV"},
        Entry{DivingIcons::tank, u"dive.tank", u"Bombola"},
        Entry{DivingIcons::mask, u"dive.mask", u"Maschera"},
        Entry{DivingIcons::fins, u"dive.fins", u"Pinne"},
        Entry{DivingIcons::wetsuit, u"dive.wetsuit", u"Muta"},
        Entry{DivingIcons::drysuit, u"dive.drysuit", u"Muta Stagna"},
        Entry{DivingIcons::diveComputer, u"dive.computer", u"Computer Sub"},
        Entry{DivingIcons::diveLight, u"dive.light", u"Torcia"},
        Entry{DivingIcons::compass, u"dive.compass", u"Bussola"},
        Entry{DivingIcons::depthGauge, u"gauge.with.dots.needle.bottom.0percent", u"Profondimetro"},
        Entry{DivingIcons::pressureGauge, u"dive.gauge", u"Manometro"},
        Entry{DivingIcons::diveKnife, u"dive.knife", u"Coltello"},
        Entry{DivingIcons::reel, u"dive.reel", u"Bozzello"},
        Entry{DivingIcons::liftBag, u"balloon.fill", u"Sacco Sollevamento"},
        Entry{DivingIcons::weightBelt, u"dive.weightbelt", u"Cintura Zavorra"},
        Entry{DivingIcons::lifeJacket, u"dive.lifejacket", u"Salvagente"},
        Entry{DivingIcons::firstAid, u"cross.case.fill", u"Pronto Soccorso"},
        Entry{DivingIcons::oxygen, u"lungs.fill", u"Ossigeno"},
        Entry{DivingIcons::whistle, u"dive.whistle", u"Fischietto"},
        Entry{DivingIcons::safetyMarker, u"flag.checkered", u"Bandiera Sub"},
        Entry{DivingIcons::underwaterComms, u"antenna.radiowaves.left.and.right", u"Comunicatore"},
        Entry{DivingIcons::diveBell, u"bell.and.waves.left.and.right.fill", u"Campana Sub"},
        Entry{DivingIcons::camera, u"camera.fill", u"Fotocamera Sub"},
        Entry{DivingIcons::gopro, u"camera.macro.circle.fill", u"Action Cam"},
        Entry{DivingIcons::diveBag, u"suitcase.fill", u"Borsa Sub"},
        Entry{DivingIcons::finsBag, u"bag.badge.plus", u"Borsa Pinne"},
        Entry{DivingIcons::repairKit, u"wrench.and.screwdriver.fill", u"Kit Riparazione"},
        Entry{DivingIcons::spareParts, u"gearshape.fill", u"Ricambi"},
        Entry{DivingIcons::scuba, u"water.waves", u"Subacquea"},
        Entry{DivingIcons::freediving, u"figure.water.fitness", u"Apnea"},
        Entry{DivingIcons::snorkel, u"dive.snorkel", u"Snorkeling"},
        Entry{DivingIcons::technical, u"graduationcap.fill", u"Tecnica"},
        Entry{DivingIcons::cave, u"mountain.2.fill", u"Grotta"},
        Entry{DivingIcons::wreck, u"sailboat.fill", u"Relitto"},
        Entry{DivingIcons::night, u"moon.stars.fill", u"Notturna"},
        Entry{DivingIcons::deep, u"arrow.down.circle.fill", u"Profonda"},
        Entry{DivingIcons::service, u"wrench.fill", u"Manutenzione"},
        Entry{DivingIcons::cleaning, u"bubbles.and.sparkles.fill", u"Pulizia"},
        Entry{DivingIcons::test, u"checkmark.circle.fill", u"Test"},
        Entry{DivingIcons::repair, u"hammer.circle.fill", u"Riparazione"},
        Entry{DivingIcons::inspection, u"magnifyingglass.circle.fill", u"Ispezione"},
        Entry{DivingIcons::calibration, u"slider.horizontal.3", u"Calibrazione"},
        Entry{DivingIcons::other, u"questionmark.circle.fill", u"Altro"},
        Entry{DivingIcons::accessory, u"circle.hexagongrid.fill", u"Accessorio"},
        Entry{DivingIcons::custom, u"pencil.circle.fill", u"Personalizzato"},
    };
};

[[nodiscard]] inline QString displayName(DivingIcons icon)
{
    return entryOf(icon).displayName.toString();
}

/// The title of the picker section that the icon stands in.
[[nodiscard]] QString category(DivingIcons icon);

struct DivingIconsCategory
{
    QString title;
    QList<DivingIcons> icons;

    friend bool operator==(const DivingIconsCategory&, const DivingIconsCategory&) = default;
};

/// The eight sections by title in code-point order, the icons of each in declaration order.
[[nodiscard]] QList<DivingIconsCategory> categorizedDivingIcons();

} // namespace abissora
