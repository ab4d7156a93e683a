// SPDX-License-Identifier: MIT
#include "AvailableColors.h"

namespace abissora {

namespace {

struct ColorRow
{
    QStringView caseName;
    NamedColor color;
};

constexpr std::array rows{
    ColorRow{u"blue", NamedColor::blue},     ColorRow{u"red", NamedColor::red},
    ColorRow{u"green", NamedColor::green},   ColorRow{u"orange", NamedColor::orange},
    ColorRow{u"purple", NamedColor::purple}, ColorRow{u"gray", NamedColor::gray},
    ColorRow{u"cyan", NamedColor::cyan},     ColorRow{u"indigo", NamedColor::indigo},
    ColorRow{u"pink", NamedColor::pink},     ColorRow{u"yellow", NamedColor::yellow},
    ColorRow{u"teal", NamedColor::teal},     ColorRow{u"mint", NamedColor::mint},
    ColorRow{u"brown", NamedColor::brown},
};

} // namespace

NamedColor colorValue(AvailableColors color)
{
    return rows.at(static_cast<std::size_t>(color)).color;
}

QString caseName(AvailableColors color)
{
    return rows.at(static_cast<std::size_t>(color)).caseName.toString();
}

std::optional<AvailableColors> availableColorNamed(QStringView name)
{
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].caseName == name)
            return static_cast<AvailableColors>(i);
    }
    return std::nullopt;
}

} // namespace abissora
