// SPDX-License-Identifier: MIT
#pragma once

#include "FormDriver.h"
#include "ScreenFixture.h"

/// Opening and reading the type screens.
namespace abissora::test {

/// A sheet over a window of the smallest size.
template <typename SheetClass>
struct OpenSheet
{
    template <typename... Arguments>
    explicit OpenSheet(const Arguments&... arguments)
        : sheet((window.resize(1000, 700), window.show(), arguments)..., &window)
        , driver(sheet)
    {
        sheet.open();
        sheet.activateWindow();
        QCoreApplication::processEvents();
    }

    QWidget window;
    SheetClass sheet;
    FormDriver driver;
};

/// The texts of the visible labels, from top to bottom as they were made.
inline QStringList visibleLabels(const QWidget& root)
{
    QStringList texts;
    for (const QLabel* label : root.findChildren<QLabel*>()) {
        if (label->isVisible() && !label->text().isEmpty())
            texts.append(label->text());
    }
    return texts;
}

/// The object names that Tab visits from the focused widget on, until it is there again.
inline QStringList tabOrder(const QWidget& root)
{
    QStringList order;
    const QWidget* const first = root.focusWidget();
    do {
        order.append(root.focusWidget()->objectName());
        QTest::keyClick(root.focusWidget(), Qt::Key_Tab);
    } while (root.focusWidget() != first && order.size() < 200);
    return order;
}

/// Runs `check` with the application's font a quarter larger.
template <typename Check>
void withLargerText(Check check)
{
    const QFont usual = QApplication::font();
    QFont larger = usual;
    larger.setPointSizeF(usual.pointSizeF() * 1.25);
    QApplication::setFont(larger);
    check();
    QApplication::setFont(usual);
}

} // namespace abissora::test
