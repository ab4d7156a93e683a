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
    using Entry = RawValueEntry<DivingIcons>;
    static constexpr std::array entries{
        Entry{DivingIcons::regulator, u"dive.regulator"},
        Entry{DivingIcons::bcd, u"dive.bcd"},
        Entry{DivingIcons::tank, u"dive.tank"},
        Entry{DivingIcons::mask, u"dive.mask"},
        Entry{DivingIcons::fins, u"dive.fins"},
        Entry{DivingIcons::wetsuit, u"dive.wetsuit"},
        Entry{DivingIcons::drysuit, u"dive.drysuit"},
        Entry{DivingIcons::diveComputer, u"dive.computer"},
        Entry{DivingIcons::diveLight, u"dive.light"},
        Entry{DivingIcons::compass, u"dive.compass"},
        Entry{DivingIcons::depthGauge, u"gauge.with.dots.needle.bottom.0percent"},
        Entry{DivingIcons::pressureGauge, u"dive.gauge"},
        Entry{DivingIcons::diveKnife, u"dive.knife"},
        Entry{DivingIcons::reel, u"dive.reel"},
        Entry{DivingIcons::liftBag, u"balloon.fill"},
        Entry{DivingIcons::weightBelt, u"dive.weightbelt"},
        Entry{DivingIcons::lifeJacket, u"dive.lifejacket"},
        Entry{DivingIcons::firstAid, u"cross.case.fill"},
        Entry{DivingIcons::oxygen, u"lungs.fill"},
        Entry{DivingIcons::whistle, u"dive.whistle"},
        Entry{DivingIcons::safetyMarker, u"flag.checkered"},
        Entry{DivingIcons::underwaterComms, u"antenna.radiowaves.left.and.right"},
        Entry{DivingIcons::diveBell, u"bell.and.waves.left.and.right.fill"},
        Entry{DivingIcons::camera, u"camera.fill"},
        Entry{DivingIcons::gopro, u"camera.macro.circle.fill"},
        Entry{DivingIcons::diveBag, u"suitcase.fill"},
        Entry{DivingIcons::finsBag, u"bag.badge.plus"},
        Entry{DivingIcons::repairKit, u"wrench.and.screwdriver.fill"},
        Entry{DivingIcons::spareParts, u"gearshape.fill"},
        Entry{DivingIcons::scuba, u"water.waves"},
        Entry{DivingIcons::freediving, u"figure.water.fitness"},
        Entry{DivingIcons::snorkel, u"dive.snorkel"},
        Entry{DivingIcons::technical, u"graduationcap.fill"},
        Entry{DivingIcons::cave, u"mountain.2.fill"},
        Entry{DivingIcons::wreck, u"sailboat.fill"},
        Entry{DivingIcons::night, u"moon.stars.fill"},
        Entry{DivingIcons::deep, u"arrow.down.circle.fill"},
        Entry{DivingIcons::service, u"wrench.fill"},
        Entry{DivingIcons::cleaning, u"bubbles.and.sparkles.fill"},
        Entry{DivingIcons::test, u"checkmark.circle.fill"},
        Entry{DivingIcons::repair, u"hammer.circle.fill"},
        Entry{DivingIcons::inspection, u"magnifyingglass.circle.fill"},
        Entry{DivingIcons::calibration, u"slider.horizontal.3"},
        Entry{DivingIcons::other, u"questionmark.circle.fill"},
        Entry{DivingIcons::accessory, u"circle.hexagongrid.fill"},
        Entry{DivingIcons::custom, u"pencil.circle.fill"},
    };
};

[[nodiscard]] QString displayName(DivingIcons icon);

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
