// SPDX-License-Identifier: MIT
#pragma once

#include "TestRunner.h"
#include "Theme.h"

#include <QAccessible>
#include <QApplication>
#include <QTest>
#include <QWidget>

namespace abissora::test {

/// Base of the component tests: the theme is applied, widgets are shown and answered for by screen readers.
class ComponentTest : public TestCase
{
    Q_OBJECT

protected Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

protected:
    static void activate(QWidget& window)
    {
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    static QAccessible::Role roleOf(QWidget& widget) { return QAccessible::queryAccessibleInterface(&widget)->role(); }
    static QString nameOf(QWidget& widget)
    {
        return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
    }
};

} // namespace abissora::test
