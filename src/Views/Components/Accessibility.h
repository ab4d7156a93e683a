// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>
#include <functional>

class QAbstractButton;
class QComboBox;

namespace abissora {

// What screen readers are told of a widget where the toolkit does not know it by itself. A class says it first of all
// in its constructor; where a class and its base both speak, the last one is heard.

enum class AccessibleParts {
    Shown,
    Hidden, ///< the widget reads out its children itself
};

void setAccessibleRole(QWidget& widget, QAccessible::Role role, AccessibleParts parts = AccessibleParts::Shown);

/// One of several buttons that exclude one another; the toolkit would make check boxes of them. Its text is its name
/// unless it has an accessible name.
void setAccessibleChoice(QAbstractButton& button, QAccessible::Role role = QAccessible::RadioButton);

/// The toolkit names a picker by its choice alone. This one is read as "Tipo: Erogatore", with what names it by its
/// label or its accessible name; its value is the choice.
void setAccessiblePicker(QComboBox& picker);

/// A button that leads to a page elsewhere.
void setAccessibleLink(QAbstractButton& button);

void setAccessibleMaker(QWidget& widget, const std::function<QAccessibleInterface*(QWidget*)>& make);

/// For a widget that needs more than a role: an interface of its own, made from a pointer to the widget. One that is
/// being destroyed has none of its own any more, though the toolkit asks for it.
template <typename Interface, typename Widget>
void setAccessibleInterface(Widget& widget)
{
    setAccessibleMaker(widget, [](QWidget* object) -> QAccessibleInterface* {
        auto* const whole = qobject_cast<Widget*>(object);
        return whole != nullptr ? new Interface(whole) : nullptr;
    });
}

/// Has the text read out at once, whatever has the focus, for what comes into sight elsewhere: the reason why a field
/// takes no text, how something ended. The same text is read again each time; an empty one is not.
void announce(QWidget& widget, const QString& text);

} // namespace abissora
