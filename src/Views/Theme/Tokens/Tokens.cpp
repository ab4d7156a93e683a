// SPDX-License-Identifier: MIT
#include "Tokens.h"

#include <QPalette>

namespace abissora {

namespace {

QColor rgb(const char* hex)
{
    return QColor(QLatin1String(hex));
}

Tokens lightTokens()
{
    return {
        .window = rgb("#F4F6F8"),
        .sidebar = rgb("#E9EDF1"),
        .surface = rgb("#FFFFFF"),
        .field = rgb("#FFFFFF"),
        .border = rgb("#D3DAE1"),
        .divider = rgb("#E8ECF0"),
        .strongBorder = rgb("#7C8894"),
        .text = rgb("#18212A"),
        .secondaryText = rgb("#52606D"),
        .disabled = rgb("#8A96A1"),
        .accentInk = rgb("#0A64BE"),
        .accentFill = rgb("#0A64BE"),
        .onFill = rgb("#FFFFFF"),
        .accentTint = rgb("#E1EDF9"),
        .selection = rgb("#D9E8F8"),
        .match = rgb("#FFE08A"),
        .danger = rgb("#C62828"),
        .dangerFill = rgb("#C62828"),
        .dangerTint = rgb("#FBE9E9"),
        .ok = rgb("#18764A"),
        .warning = rgb("#B25000"),
        .scrim = rgb("#660B0F14"),
        .namedColors = {rgb("#0A64BE"), rgb("#C62828"), rgb("#166826"), rgb("#B25000"), rgb("#8944AB"), rgb("#5F6A75"),
                        rgb("#0880A8"), rgb("#4B45B8"), rgb("#C2185B"), rgb("#8C7104"), rgb("#046169"), rgb("#0A856A"),
                        rgb("#6A391B")},
    };
}

Tokens darkTokens()
{
    return {
        .window = rgb("#16191D"),
        .sidebar = rgb("#1C2025"),
        .surface = rgb("#20252B"),
        .field = rgb("#16191D"),
        .border = rgb("#353D46"),
        .divider = rgb("#2B3138"),
        .strongBorder = rgb("#77838F"),
        .text = rgb("#E8ECF0"),
        .secondaryText = rgb("#A5B0BB"),
        .disabled = rgb("#6C7782"),
        .accentInk = rgb("#58A6FF"),
        .accentFill = rgb("#1F6FD0"),
        .onFill = rgb("#FFFFFF"),
        .accentTint = rgb("#1A2F49"),
        .selection = rgb("#1F3A5B"),
        .match = rgb("#6B4E00"),
        .danger = rgb("#FF7A72"),
        .dangerFill = rgb("#D32F2F"),
        .dangerTint = rgb("#3A2427"),
        .ok = rgb("#4CC38A"),
        .warning = rgb("#F0A93B"),
        .scrim = rgb("#8C000000"),
        .namedColors = {rgb("#58A6FF"), rgb("#FF7A72"), rgb("#4CC38A"), rgb("#F0A93B"), rgb("#CB8CF5"), rgb("#A0AAB4"),
                        rgb("#64D2FF"), rgb("#A19EFF"), rgb("#FF7EB0"), rgb("#FFD60A"), rgb("#1FA8A8"), rgb("#63E6D8"),
                        rgb("#BC895D")},
    };
}

} // namespace

QColor Tokens::named(NamedColor color) const
{
    switch (color) {
    case NamedColor::primary:
        return text;
    case NamedColor::secondary:
        return secondaryText;
    default:
        return namedColors.at(static_cast<std::size_t>(color));
    }
}

const Tokens& Tokens::of(Scheme scheme)
{
    static const Tokens light = lightTokens();
    static const Tokens dark = darkTokens();
    return scheme == Scheme::Dark ? dark : light;
}

const Tokens& Tokens::of(const QPalette& palette)
{
    return of(schemeOf(palette));
}

Scheme schemeOf(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < 128 ? Scheme::Dark : Scheme::Light;
}

} // namespace abissora
