// SPDX-License-Identifier: MIT
#include "IconMigration.h"

#include "Literals.h"

#include <array>

namespace abissora {

namespace {

struct Successor
{
    QStringView old;
    QStringView current;
};

/// The icon sets of earlier versions. A successor that was itself replaced later stands here again as an old name; a
/// migration takes one step all the same.
constexpr std::array successors{
    Successor{u"wind.circle.fill", u"dive.regulator"},
    Successor{u"person.wave.2.circle.fill", u"dive.bcd"},
    Successor{u"water.waves.and.arrow.up", u"dive.bcd"},
    Successor{u"cylinder.fill", u"dive.tank"},
    Successor{u"face.mask.fill", u"dive.mask"},
    Successor{u"facemask.fill", u"dive.mask"},
    Successor{u"shoe.fill", u"dive.fins"},
    Successor{u"figure.pool.swim", u"dive.fins"},
    Successor{u"person.fill", u"dive.wetsuit"},
    Successor{u"person.fill.turn.down", u"dive.drysuit"},
    Successor{u"desktopcomputer", u"dive.computer"},
    Successor{u"lightbulb.fill", u"dive.light"},
    Successor{u"flashlight.on.fill", u"dive.light"},
    Successor{u"safari.fill", u"compass.drawing"},
    Successor{u"gauge.with.dots.needle.bottom.0percent", u"gauge.with.dots.needle.bottom.50percent"},
    Successor{u"fishing.rod", u"lasso"},
    Successor{u"bag.fill", u"balloon.fill"},
    Successor{u"belt", u"scalemass.fill"},
    Successor{u"lifebuoy.fill", u"circle.dotted.circle.fill"},
    Successor{u"cross.fill", u"lungs.fill"},
    Successor{u"flag.fill", u"flag.checkered"},
    Successor{u"waveform.circle.fill", u"antenna.radiowaves.left.and.right"},
    Successor{u"bell.fill", u"bell.and.waves.left.and.right.fill"},
    Successor{u"figure.dive", u"figure.water.fitness"},
    Successor{u"nose.fill", u"fish.fill"},
    Successor{u"wrench.circle.fill", u"wrench.fill"},
    Successor{u"drop.circle.fill", u"bubbles.and.sparkles.fill"},
    Successor{u"compass.drawing", u"dive.compass"},
    Successor{u"gauge.with.dots.needle.bottom.50percent", u"dive.gauge"},
    Successor{u"scissors", u"dive.knife"},
    Successor{u"lasso", u"dive.reel"},
    Successor{u"scalemass.fill", u"dive.weightbelt"},
    Successor{u"circle.dotted.circle.fill", u"dive.lifejacket"},
    Successor{u"megaphone.fill", u"dive.whistle"},
    Successor{u"fish.fill", u"dive.snorkel"},
};

std::optional<QString> successorOf(const QString& icon)
{
    const auto found = std::ranges::find(successors, icon, &Successor::old);
    return found == successors.end() ? std::nullopt : std::optional(found->current.toString());
}

bool isOwnPicture(const QString& icon)
{
    return icon.startsWith("dive."_L1);
}

QString migrated(const EquipmentTypeModel& type, const QList<EquipmentTypeModel>& defaults,
                 const SymbolLibrary& symbols)
{
    QString icon = successorOf(type.icon).value_or(type.icon);
    const auto standard = std::ranges::find(defaults, type.name, &EquipmentTypeModel::name);
    if (standard != defaults.end() && isOwnPicture(standard->icon))
        icon = standard->icon;
    if (!isOwnPicture(icon) && !symbols.contains(icon))
        icon = u"questionmark.circle.fill"_s;
    return icon;
}

} // namespace

bool migrateIcons(QList<EquipmentTypeModel>& types, const QList<EquipmentTypeModel>& defaults,
                  const SymbolLibrary& symbols)
{
    bool changed = false;
    for (EquipmentTypeModel& type : types) {
        const QString icon = migrated(type, defaults, symbols);
        changed = changed || icon != type.icon;
        type.icon = icon;
    }
    return changed;
}

} // namespace abissora
