// SPDX-License-Identifier: MIT
#pragma once

#include "Gui.h"
#include "TestRunner.h"
#include "Theme.h"

#include <QAccessible>

namespace abissora::test {

/// Base of the component tests: the theme is applied, widgets are shown and answered for by screen readers.
class ComponentTest : public TestCase
{
    Q_OBJECT

protected Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

protected:
    static QAccessible::Role roleOf(QWidget& widget) { return QAccessible::queryAccessibleInterface(&widget)->role(); }
    static QString nameOf(QWidget& widget)
    {
        return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
    }
};

} // namespace abissora::test
