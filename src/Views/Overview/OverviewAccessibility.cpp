// SPDX-License-Identifier: MIT
#include "OverviewAccessibility.h"

#include "DueList.h"
#include "Literals.h"

#include <QAccessibleWidget>

namespace abissora {

namespace {

class RowInterface final : public QAccessibleWidget
{
public:
    explicit RowInterface(QWidget* row)
        : QAccessibleWidget(row, QAccessible::ListItem)
    {}
};

/// Its rows in their order on the screen, which is not the order in which they were made.
class ListInterface final : public QAccessibleWidget
{
public:
    explicit ListInterface(DueList* list)
        : QAccessibleWidget(list, QAccessible::List)
    {}

    [[nodiscard]] int childCount() const override { return static_cast<int>(list()->rows().size()); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override
    {
        return QAccessible::queryAccessibleInterface(list()->rows().value(index));
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override
    {
        return child != nullptr ? static_cast<int>(list()->rows().indexOf(qobject_cast<DueRow*>(child->object()))) : -1;
    }

private:
    [[nodiscard]] const DueList* list() const { return static_cast<DueList*>(object()); }
};

QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    if (className == "abissora::DueList"_L1)
        return std::make_unique<ListInterface>(static_cast<DueList*>(object)).release();
    if (className == "abissora::DueRow"_L1)
        return std::make_unique<RowInterface>(static_cast<DueRow*>(object)).release();
    return nullptr;
}

} // namespace

void provideOverviewAccessibility()
{
    QAccessible::installFactory(makeInterface); // does nothing when it is there
}

} // namespace abissora
