// SPDX-License-Identifier: MIT
#include "Reason.h"

#include <QAccessible>
#include <QLabel>

namespace abissora {

void showReason(QLabel& label, const QString& text)
{
    label.setText(text);
    label.setAccessibleName(text);
    label.setVisible(!text.isEmpty());
    if (text.isEmpty())
        return;
    QAccessibleEvent announcement(&label, QAccessible::Alert);
    QAccessible::updateAccessibility(&announcement);
}

} // namespace abissora
