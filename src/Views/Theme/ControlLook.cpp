// SPDX-License-Identifier: MIT
#include "ControlLook.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QProgressBar>
#include <QVariant>

namespace abissora {

namespace {

constexpr const char* buttonProperty = "abissoraButtonLook";
constexpr const char* selectionProperty = "abissoraSelectionLook";
constexpr const char* destructiveProperty = "abissoraDestructive";
constexpr const char* invalidProperty = "abissoraInvalid";
constexpr const char* barProperty = "abissoraBarColor";

} // namespace

void setButtonLook(QAbstractButton& button, ButtonLook look)
{
    button.setProperty(buttonProperty, static_cast<int>(look));
    button.updateGeometry();
    button.update();
}

ButtonLook buttonLook(const QWidget* button, ButtonLook otherwise)
{
    const QVariant look = button != nullptr ? button->property(buttonProperty) : QVariant();
    return look.isValid() ? static_cast<ButtonLook>(look.toInt()) : otherwise;
}

void setSelectionLook(QAbstractItemView& view, SelectionLook look)
{
    view.setProperty(selectionProperty, static_cast<int>(look));
    view.viewport()->update();
}

SelectionLook selectionLook(const QWidget* view)
{
    const QVariant look = view != nullptr ? view->property(selectionProperty) : QVariant();
    return look.isValid() ? static_cast<SelectionLook>(look.toInt()) : SelectionLook::Row;
}

void setDestructiveLook(QAction& entry)
{
    entry.setProperty(destructiveProperty, true);
}

bool hasDestructiveLook(const QAction* entry)
{
    return entry != nullptr && entry->property(destructiveProperty).toBool();
}

void setInvalidLook(QWidget& field, bool invalid)
{
    field.setProperty(invalidProperty, invalid);
    field.update();
}

bool hasInvalidLook(const QWidget* field)
{
    return field != nullptr && field->property(invalidProperty).toBool();
}

void setBarColor(QProgressBar& bar, NamedColor color)
{
    bar.setProperty(barProperty, static_cast<int>(color));
    bar.update();
}

std::optional<NamedColor> barColor(const QWidget* bar)
{
    const QVariant color = bar != nullptr ? bar->property(barProperty) : QVariant();
    return color.isValid() ? std::optional(static_cast<NamedColor>(color.toInt())) : std::nullopt;
}

} // namespace abissora
