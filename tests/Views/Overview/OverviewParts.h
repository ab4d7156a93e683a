// SPDX-License-Identifier: MIT
#pragma once

#include "ContentView.h"
#include "DetailParts.h"
#include "DueList.h"
#include "Literals.h"
#include "MainWindow.h"
#include "ShellFixture.h"
#include "StatCard.h"

#include <QScrollArea>

namespace abissora::test {

/// The main window with one of its tabs, shown and active.
struct ShownTab
{
    ShownTab(ShellFixture& f, ContentView::Tab tab, QSize size = {1280, 800})
        : window(f, f.equipment, f.directories.windowStateFile())
    {
        window.content().setSelectedTab(tab);
        window.resize(size);
        window.show();
        window.activateWindow();
        settle();
    }

    [[nodiscard]] DueList& dueList() { return part<DueList>(window, u"dueList"_s); }

    MainWindow window;
};

/// "title: value" of every card in sight, in the order of its place: row by row.
inline QStringList cardTexts(const QWidget& screen)
{
    QList<StatCard*> cards = screen.findChildren<StatCard*>();
    cards.removeIf([](const StatCard* card) { return !card->isVisible(); });
    std::sort(cards.begin(), cards.end(), [](const StatCard* a, const StatCard* b) {
        return std::pair(a->y(), a->x()) < std::pair(b->y(), b->x());
    });
    QStringList texts;
    for (const StatCard* card : cards)
        texts.append(card->accessibleName());
    return texts;
}

/// "name, state" of the rows that exist, from top to bottom.
inline QStringList rowTexts(const DueList& list)
{
    QStringList texts;
    for (const DueRow* row : list.rows())
        texts.append(row->accessibleName());
    return texts;
}

/// So many active items, due one day after the other from today on.
inline QList<Equipment> dueItems(const Calendar& calendar, Instant now, int count)
{
    QList<Equipment> items;
    for (int i = 0; i < count; ++i)
        items.append(makeItem(i, u"Articolo %1"_s.arg(i), EquipmentType::mask, calendar.addDays(now, -i).value()));
    return items;
}

inline QList<Equipment> dueItems(int count)
{
    return dueItems(Calendar(QTimeZone("Europe/Rome")), FixedClock().now(), count);
}

} // namespace abissora::test
