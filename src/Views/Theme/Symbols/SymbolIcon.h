// SPDX-License-Identifier: MIT
#pragma once

#include "NamedColor.h"
#include "SymbolLibrary.h"

#include <QIcon>
#include <optional>

namespace abissora {

/// The program's own symbol library: the pictures extracted at configure time, by symbol name, among the resources.
class ResourceSymbolLibrary final : public SymbolLibrary
{
public:
    [[nodiscard]] bool contains(const QString& name) const override;
};

/// The icon of a symbol, drawn at the device's own pixels for whatever size is asked, in the given colour of the
/// application palette's scheme; without a colour in the palette's text colour. A disabled icon has the disabled
/// colour, a selected one the colour of selected text. Follows a change of scheme at its next paint. An unknown name
/// gives an icon that is null and paints nothing.
[[nodiscard]] QIcon symbolIcon(const QString& name, std::optional<NamedColor> color = std::nullopt);

/// The same in one fixed colour (white on a filled control, for instance), which only a disabled icon gives up.
[[nodiscard]] QIcon symbolIcon(const QString& name, const QColor& color);

/// The picture of a type: of the program's own images for a "dive." identifier, else of the symbol library. Keeps its
/// aspect ratio in the space it is given; an unknown identifier shows nothing.
[[nodiscard]] QIcon typeIcon(const QString& name, NamedColor color = NamedColor::primary);

/// For places that take only a bitmap: a "dive." picture rendered into a square of `size` points at scale 2, centred,
/// in the colours of the present scheme; any other name as typeIcon.
[[nodiscard]] QIcon typeIconForMenu(const QString& name, int size, NamedColor color = NamedColor::primary);

/// The application's own icon, in its own colours.
[[nodiscard]] QIcon applicationIcon();

} // namespace abissora
