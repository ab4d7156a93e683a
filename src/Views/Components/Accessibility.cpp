// SPDX-License-Identifier: MIT
#include "Accessibility.h"

#include "Literals.h"
#include "Segment.h"
#include "SegmentedControl.h"
#include "Stepper.h"

#include <QAccessibleWidget>
#include <QHash>

namespace abissora {

namespace {

class RoleInterface final : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;
};

/// Children that the component reads out itself are hidden.
class LeafInterface final : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
};

class StepperInterface final : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit StepperInterface(Stepper* stepper)
        : QAccessibleWidget(stepper, QAccessible::SpinBox)
    {}

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? stepper()->text() : QAccessibleWidget::text(kind);
    }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }

    [[nodiscard]] QVariant currentValue() const override { return stepper()->value(); }
    void setCurrentValue(const QVariant& value) override { stepper()->edit(value.toLongLong()); }
    [[nodiscard]] QVariant maximumValue() const override { return stepper()->maximum(); }
    [[nodiscard]] QVariant minimumValue() const override { return stepper()->minimum(); }
    [[nodiscard]] QVariant minimumStepSize() const override { return stepper()->singleStep(); }

    [[nodiscard]] QStringList actionNames() const override
    {
        return QAccessibleWidget::actionNames() << increaseAction() << decreaseAction();
    }
    void doAction(const QString& action) override
    {
        if (action == increaseAction())
            stepper()->stepUp();
        else if (action == decreaseAction())
            stepper()->stepDown();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    [[nodiscard]] Stepper* stepper() const { return static_cast<Stepper*>(object()); }
};

class SegmentInterface final : public QAccessibleWidget
{
public:
    explicit SegmentInterface(Segment* segment)
        : QAccessibleWidget(segment, isTab(segment) ? QAccessible::PageTab : QAccessible::RadioButton)
    {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? segment()->text() : QAccessibleWidget::text(kind);
    }
    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = segment()->isChecked();
        state.selectable = true;
        state.selected = segment()->isChecked();
        return state;
    }
    [[nodiscard]] QStringList actionNames() const override
    {
        return QStringList{pressAction()} << QAccessibleWidget::actionNames();
    }
    void doAction(const QString& action) override
    {
        if (action == pressAction())
            segment()->click();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    static bool isTab(const Segment* segment)
    {
        const auto* control = qobject_cast<const SegmentedControl*>(segment->parentWidget());
        return control != nullptr && control->purpose() == SegmentedControl::Purpose::Tabs;
    }
    [[nodiscard]] Segment* segment() const { return static_cast<Segment*>(object()); }
};

struct Component
{
    QAccessible::Role role;
    bool isLeaf;
};

const QHash<QString, Component>& components()
{
    static const QHash<QString, Component> known{
        {u"abissora::Alert"_s, {QAccessible::AlertMessage, false}},
        {u"abissora::Card"_s, {QAccessible::Grouping, false}},
        {u"abissora::Chip"_s, {QAccessible::Grouping, false}},
        {u"abissora::EmptyState"_s, {QAccessible::Grouping, false}},
        {u"abissora::IconTile"_s, {QAccessible::Graphic, true}},
        {u"abissora::IconView"_s, {QAccessible::Graphic, true}},
        {u"abissora::ProgressIndicator"_s, {QAccessible::Animation, true}},
        {u"abissora::Separator"_s, {QAccessible::Separator, true}},
        {u"abissora::StatCard"_s, {QAccessible::StaticText, true}},
    };
    return known;
}

QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    if (className == "abissora::Stepper"_L1)
        return std::make_unique<StepperInterface>(static_cast<Stepper*>(object)).release();
    if (className == "abissora::Segment"_L1)
        return std::make_unique<SegmentInterface>(static_cast<Segment*>(object)).release();
    auto* const widget = qobject_cast<QWidget*>(object);
    if (className == "abissora::SegmentedControl"_L1) {
        const bool tabs = static_cast<SegmentedControl*>(object)->purpose() == SegmentedControl::Purpose::Tabs;
        return std::make_unique<RoleInterface>(widget, tabs ? QAccessible::PageTabList : QAccessible::Grouping)
            .release();
    }
    const auto known = components().constFind(className);
    if (widget == nullptr || known == components().constEnd())
        return nullptr;
    if (known->isLeaf)
        return std::make_unique<LeafInterface>(widget, known->role).release();
    return std::make_unique<RoleInterface>(widget, known->role).release();
}

} // namespace

void provideAccessibility()
{
    QAccessible::installFactory(makeInterface); // does nothing when it is there
}

} // namespace abissora
