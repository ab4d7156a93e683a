// SPDX-License-Identifier: MIT
// abissora-view-benchmark: how long the main window takes to paint and to follow, without a screen. Ratios as in
// abissora-benchmark. Build it with the preset "release" and run it with QT_QPA_PLATFORM=offscreen.
#include "ContentView.h"
#include "EquipmentTableView.h"
#include "MainWindow.h"
#include "Register.h"
#include "Report.h"
#include "ScreenFixture.h"
#include "Theme.h"

#include <QApplication>
#include <QLineEdit>
#include <QScrollBar>

using namespace abissora;
using namespace abissora::benchmark;

namespace {

/// Handles what is queued, redraws and repaints included.
void settle()
{
    for (int pass = 0; pass < 5; ++pass)
        QCoreApplication::processEvents();
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    applyTheme(application, Scheme::Light);
    test::ScreenFixture fixture(registerOf(10'000, test::FixedClock().now()));
    MainWindow window(fixture.context, fixture.directories.windowStateFile());
    window.resize(1280, 800);
    window.show();
    settle();

    const Report report(medianOf(51, reference));
    auto& table = *window.findChild<EquipmentTableView*>();
    auto& bar = *table.verticalScrollBar();
    report.measure("scroll 10,000 rows by a page, one frame", 101, [&] {
        bar.setValue((bar.value() + bar.pageStep()) % bar.maximum());
        table.viewport()->repaint();
    });
    report.measure("scroll 10,000 rows by a wheel notch, one frame", 101, [&] {
        bar.setValue((bar.value() + 60) % bar.maximum());
        table.viewport()->repaint();
    });

    bool dark = false;
    report.measure("switch the scheme with the main window open", 21, [&] {
        dark = !dark;
        applyTheme(application, dark ? Scheme::Dark : Scheme::Light);
        settle();
        window.repaint();
    });

    auto& search = *window.findChild<QLineEdit*>(QStringLiteral("search"));
    search.setText(QStringLiteral("e"));
    report.measure("a letter typed into the search of 10,000 items, painted", 21, [&] {
        Q_EMIT search.textEdited(search.text());
        settle();
    });
    fixture.equipment.setSearchText({});
    settle();
    report.measure("a search of 10,000 items cleared, painted", 21, [&] {
        fixture.equipment.setSearchText({});
        settle();
    });
    return 0;
}
