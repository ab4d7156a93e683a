// SPDX-License-Identifier: MIT
#include "TypesAccessibility.h"

#include "Literals.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QHash>
#include <memory>

namespace abissora {

namespace {

class RoleInterface final : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;
};

/// Of cells that exclude one another the toolkit makes check boxes.
class IconInterface final : public QAccessibleWidget
{
public:
    explicit IconInterface(QAbstractButton* cell)
        : QAccessibleWidget(cell, QAccessible::RadioButton)
    {}

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = cell()->isChecked();
        return state;
    }
    [[nodiscard]] QStringList actionNames() const override
    {
        return QStringList{pressAction()} << QAccessibleWidget::actionNames();
    }
    void doAction(const QString& action) override
    {
        if (action == pressAction())
            cell()->click();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    [[nodiscard]] QAbstractButton* cell() const { return static_cast<QAbstractButton*>(object()); }
};

QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    static const QHash<QString, QAccessible::Role> roles{
        {u"abissora::ColorChoice"_s, QAccessible::Grouping},
        {u"abissora::IconGrid"_s, QAccessible::Grouping},
        {u"abissora::TypeList"_s, QAccessible::List},
        {u"abissora::TypeRow"_s, QAccessible::ListItem},
    };
    if (className == "abissora::DivingIconButton"_L1)
        return std::make_unique<IconInterface>(static_cast<QAbstractButton*>(object)).release();
    const auto role = roles.constFind(className);
    auto* const widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr || role == roles.constEnd())
        return nullptr;
    return std::make_unique<RoleInterface>(widget, *role).release();
}

} // namespace

void provideTypesAccessibility()
{
    QAccessible::installFactory(makeInterface); // does nothing when it is there
}

} // namespace abissora
