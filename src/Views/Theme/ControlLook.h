// SPDX-License-Identifier: MIT
#pragma once

#include "NamedColor.h"

#include <QtGlobal>
#include <optional>

class QAbstractButton;
class QAbstractItemView;
class QAction;
class QProgressBar;
class QWidget;

namespace abissora {

enum class ButtonLook {
    Plain,       ///< surface and border
    Primary,     ///< the one thing that a screen is for
    Destructive, ///< as Plain, its text in the colour of danger
    Caution,     ///< as Plain, its text in the colour of warnings
    Positive,    ///< as Plain, its text in the colour of what is well
    Borderless,
    Link,            ///< accent text without a border
    DestructiveLink, ///< as Link, its text in the colour of danger
};

/// Push buttons are Plain and tool buttons Borderless until told otherwise.
void setButtonLook(QAbstractButton& button, ButtonLook look);
[[nodiscard]] ButtonLook buttonLook(const QWidget* button, ButtonLook otherwise);

enum class SelectionLook {
    Row,  ///< tinted from edge to edge, text unchanged
    Pill, ///< filled with the accent, rounded, text in white: sidebars
};

/// Item views show selected rows as Row until told otherwise.
void setSelectionLook(QAbstractItemView& view, SelectionLook look);
[[nodiscard]] SelectionLook selectionLook(const QWidget* view);

/// An entry of a menu that takes something away stands in the colour of danger.
void setDestructiveLook(QAction& entry);
[[nodiscard]] bool hasDestructiveLook(const QAction* entry);

/// A field that holds what cannot be taken stands in the colour of danger.
void setInvalidLook(QWidget& field, bool invalid);
[[nodiscard]] bool hasInvalidLook(const QWidget* field);

/// Progress bars have the accent colour until told otherwise.
void setBarColor(QProgressBar& bar, NamedColor color);
[[nodiscard]] std::optional<NamedColor> barColor(const QWidget* bar);

} // namespace abissora
