// SPDX-License-Identifier: MIT
// abissora-view-benchmark: how long the main window takes to paint and to follow, without a screen. Ratios as in
// abissora-benchmark. Build it with the preset "release" and run it with QT_QPA_PLATFORM=offscreen.
//
//   abissora-view-benchmark [window|history|overview|paper]...
#include "ContentView.h"
#include "EquipmentTableView.h"
#include "ListPage.h"
#include "Literals.h"
#include "MainWindow.h"
#include "PagePainter.h"
#include "PaperLook.h"
#include "PaperSize.h"
#include "PrintedList.h"
#include "Register.h"
#include "Report.h"
#include "ShellFixture.h"
#include "Theme.h"

#include <QApplication>
#include <QBuffer>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>

using namespace abissora;
using namespace abissora::benchmark;
using test::settle;

namespace {

void measureMainWindow(const Report& report, QApplication& application, test::ShellFixture& fixture)
{
    MainWindow window(fixture, fixture.equipment, fixture.directories.windowStateFile());
    window.resize(1280, 800);
    window.show();
    settle();

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

    auto& search = *window.findChild<QLineEdit*>(u"search"_s);
    report.measure("a letter typed into the search of 10,000 items and deleted, both painted", 21, [&] {
        search.setText(u"e"_s);
        settle();
        search.clear();
        settle();
    });
}

/// Selecting an item with a long history in the list, and going through that.
void measureHistory(const Report& report)
{
    const test::FixedClock clock;
    QList<Equipment> equipment = registerOf(300, clock.now());
    for (int i = 0; i < 2 * 496; ++i) {
        Maintenance record = equipment.at(i % 300).maintenanceHistory.at(i % 4);
        record.id = QUuid::createUuidV5(QUuid(), QString::number(i));
        if (i % 3 == 0)
            record.description += u", sostituiti O-ring, molle e membrana del secondo stadio"_s;
        equipment[i % 2].maintenanceHistory.append(record);
    }
    test::ShellFixture fixture(equipment);
    MainWindow window(fixture, fixture.equipment, fixture.directories.windowStateFile());
    window.resize(1280, 800);
    window.show();
    settle();
    ListPage& page = *window.findChild<ListPage*>();
    qsizetype next = 0;
    const auto selectNext = [&](qsizetype first) {
        page.setSelectedEquipment(equipment.at(first + next));
        settle();
        next = 1 - next;
    };
    report.measure("an item of 4 records selected after another, painted", 51, [&] { selectNext(2); });
    report.measure("an item of 500 records selected after another, painted", 51, [&] { selectNext(0); });
    page.setSelectedEquipment(equipment.at(0));
    settle();
    auto& area = *window.findChild<EquipmentDetailView*>()->findChild<QScrollArea*>();
    auto& bar = *area.verticalScrollBar();
    report.measure("history of 500 records scrolled by a wheel notch, one frame", 101, [&] {
        bar.setValue((bar.value() + 60) % bar.maximum());
        area.viewport()->repaint();
    });
}

/// A screen made, shown in a size of its own and painted.
std::unique_ptr<QWidget> open(QWidget* made)
{
    std::unique_ptr<QWidget> screen(made);
    screen->resize(1030, 720);
    screen->show();
    settle();
    return screen;
}

struct OverviewTitles
{
    const char* open;
    const char* redraw;
    const char* page;
    const char* jump;
    const char* statistics;
};

void measureOverview(const Report& report, test::ShellFixture& fixture, const OverviewTitles& titles)
{
    report.measure(titles.open, 21, [&] { open(fixture.makeOverview()); });
    const auto overview = open(fixture.makeOverview());
    report.measure(titles.redraw, 21, [&] {
        fixture.equipment.refreshDates();
        settle();
    });
    auto& area = *overview->findChild<QScrollArea*>();
    auto& bar = *area.verticalScrollBar();
    report.measure(titles.page, 101, [&] {
        bar.setValue((bar.value() + bar.pageStep()) % bar.maximum());
        area.viewport()->repaint();
    });
    report.measure(titles.jump, 101, [&] {
        bar.setValue(bar.value() > bar.maximum() / 2 ? 0 : bar.maximum());
        area.viewport()->repaint();
    });
    report.measure(titles.statistics, 21, [&] { open(fixture.makeStatistics()); });
}

void measurePaper(const Report& report, const test::ShellFixture& fixture)
{
    const PrintedPaper list = PrintedList::listOf(fixture.equipment.equipment(), {}, fixture.types, fixture.almanac);
    const QSizeF size = pageSize(PaperSize::A4).size(QPageSize::Point);
    report.measure("list of 10,000 items laid out on paper", 5, [&] { PageLayout(list, size); });
    const PageLayout layout(list, size);
    report.measure("list of 10,000 items as PDF", 3, [&] {
        QBuffer file;
        file.open(QIODevice::WriteOnly);
        WorkProgress progress;
        static_cast<void>(PagePainter::writePdf(file, {layout}, paperInk(), progress));
    });
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    applyTheme(application, Scheme::Light);
    const QStringList groups = QCoreApplication::arguments().mid(1);
    const auto wants = [&groups](const QString& group) { return groups.isEmpty() || groups.contains(group); };
    const Report report(medianOf(51, reference));
    if (wants(u"history"_s))
        measureHistory(report);
    if (!wants(u"window"_s) && !wants(u"overview"_s) && !wants(u"paper"_s))
        return 0;

    test::ShellFixture fixture(registerOf(10'000, test::FixedClock().now()));
    if (wants(u"window"_s))
        measureMainWindow(report, application, fixture);
    if (wants(u"overview"_s)) {
        measureOverview(report, fixture,
                        {"overview opened, 10,000 items, about half of them due", "overview redrawn, 10,000 items",
                         "overview scrolled by a page, 10,000 items, one frame",
                         "overview scrolled from end to end, 10,000 items, one frame",
                         "statistics opened, 10,000 items"});
        test::ShellFixture small(registerOf(300, test::FixedClock().now()));
        measureOverview(report, small,
                        {"overview opened, 300 items, about half of them due", "overview redrawn, 300 items",
                         "overview scrolled by a page, 300 items, one frame",
                         "overview scrolled from end to end, 300 items, one frame", "statistics opened, 300 items"});
    }
    if (wants(u"paper"_s))
        measurePaper(report, fixture);
    return 0;
}
