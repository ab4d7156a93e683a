// SPDX-License-Identifier: MIT
#include "Accessibility.h"

#include "Literals.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QVariant>

namespace abissora {

namespace {

using Maker = std::function<QAccessibleInterface*(QWidget*)>;

constexpr const char* makerProperty = "abissoraAccessible";

class RoleInterface final : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;
};

class LeafInterface final : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
};

/// A button of another role.
class PressInterface : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        const bool isUnnamed = kind == QAccessible::Name && widget()->accessibleName().isEmpty();
        return isUnnamed ? button()->text() : QAccessibleWidget::text(kind);
    }
    [[nodiscard]] QStringList actionNames() const override
    {
        return QStringList{pressAction()} << QAccessibleWidget::actionNames();
    }
    void doAction(const QString& action) override
    {
        if (action == pressAction())
            button()->click();
        else
            QAccessibleWidget::doAction(action);
    }

protected:
    [[nodiscard]] QAbstractButton* button() const { return static_cast<QAbstractButton*>(object()); }
};

class PickerInterface final : public QAccessibleWidget
{
public:
    explicit PickerInterface(QComboBox* picker)
        : QAccessibleWidget(picker, QAccessible::ComboBox)
    {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        const QString choice = picker()->currentText();
        const QString own = QAccessibleWidget::text(kind);
        if (kind == QAccessible::Name)
            return own.isEmpty() ? choice : own + u": "_s + choice;
        return kind == QAccessible::Value ? choice : own;
    }
    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = picker()->view()->isVisible();
        return state;
    }
    [[nodiscard]] int childCount() const override { return 1; }
    [[nodiscard]] QAccessibleInterface* child(int index) const override
    {
        return index == 0 ? QAccessible::queryAccessibleInterface(picker()->view()) : nullptr;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override
    {
        return child->object() == picker()->view() ? 0 : -1;
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override
    {
        const QAbstractItemView* const view = picker()->view();
        const bool isHit = view->isVisible() && view->rect().contains(view->mapFromGlobal(QPoint(x, y)));
        return isHit ? child(0) : nullptr;
    }
    [[nodiscard]] QStringList actionNames() const override
    {
        return QStringList{showMenuAction(), pressAction()} << QAccessibleWidget::actionNames();
    }
    void doAction(const QString& action) override
    {
        if (action == showMenuAction() || action == pressAction())
            picker()->view()->isVisible() ? picker()->hidePopup() : picker()->showPopup();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    [[nodiscard]] QComboBox* picker() const { return static_cast<QComboBox*>(object()); }
};

class ChoiceInterface final : public PressInterface
{
public:
    using PressInterface::PressInterface;

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = button()->isChecked();
        state.selectable = true;
        state.selected = button()->isChecked();
        return state;
    }
};

/// Of a button that is being destroyed only the widget is left.
bool isWhole(const QWidget* button)
{
    return qobject_cast<const QAbstractButton*>(button) != nullptr;
}

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object)
{
    auto* const widget = qobject_cast<QWidget*>(object);
    const QVariant maker = widget != nullptr ? widget->property(makerProperty) : QVariant();
    return maker.isValid() ? maker.value<Maker>()(widget) : nullptr;
}

/// Where a window's announcements stand for screen readers.
QWidget& announcer(QWidget& window)
{
    const auto objectName = u"announcer"_s;
    if (auto* const found = window.findChild<QWidget*>(objectName, Qt::FindDirectChildrenOnly))
        return *found;
    auto* const made = new QWidget(&window);
    made->setObjectName(objectName);
    made->setAttribute(Qt::WA_TransparentForMouseEvents);
    made->resize(0, 0);
    setAccessibleRole(*made, QAccessible::Notification, AccessibleParts::Hidden);
    return *made;
}

} // namespace

void setAccessibleRole(QWidget& widget, QAccessible::Role role, AccessibleParts parts)
{
    setAccessibleMaker(widget, [role, parts](QWidget* object) -> QAccessibleInterface* {
        if (parts == AccessibleParts::Hidden)
            return new LeafInterface(object, role);
        return new RoleInterface(object, role);
    });
}

void setAccessibleChoice(QAbstractButton& button, QAccessible::Role role)
{
    setAccessibleMaker(button, [role](QWidget* object) -> QAccessibleInterface* {
        return isWhole(object) ? new ChoiceInterface(object, role) : nullptr;
    });
}

void setAccessiblePicker(QComboBox& picker)
{
    setAccessibleInterface<PickerInterface>(picker);
}

void setAccessibleLink(QAbstractButton& button)
{
    setAccessibleMaker(button, [](QWidget* object) -> QAccessibleInterface* {
        return isWhole(object) ? new PressInterface(object, QAccessible::Link) : nullptr;
    });
}

void setAccessibleMaker(QWidget& widget, const Maker& make)
{
    QAccessible::installFactory(makeInterface); // does nothing when it is there
    widget.setProperty(makerProperty, QVariant::fromValue(make));
}

void announce(QWidget& widget, const QString& text)
{
    if (text.isEmpty())
        return;
    // The toolkit has no event for this: readers speak the name of a notification that comes into sight.
    QWidget& place = announcer(*widget.window());
    place.hide();
    place.setAccessibleName(text);
    place.show();
}

} // namespace abissora
