// SPDX-License-Identifier: MIT
#pragma once

#include "DueList.h"
#include "Gui.h"
#include "Literals.h"
#include "MaintenanceOverviewView.h"
#include "RegisterFixture.h"
#include "StatCard.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace abissora::test {

/// A screen in a window of its own, shown and active, beside something that takes the focus when the screen has nothing
/// for it.
struct ShownScreen
{
    ShownScreen(QWidget* screen, QSize size)
    {
        auto* neighbour = new QPushButton;
        neighbour->setObjectName(u"neighbour"_s);
        auto* layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(neighbour, 0, Qt::AlignHCenter);
        layout->addWidget(screen, 1);
        window.resize(size);
        activate(window);
    }

    QWidget window;
};

/// The overview, with a dialog in the place of the detail screen.
struct ShownOverview : ShownScreen
{
    explicit ShownOverview(RegisterFixture& f, QSize size = {1050, 760})
        : ShownScreen(new MaintenanceOverviewView(f.equipment, f.types, makeSheet), size)
        , view(*window.findChild<MaintenanceOverviewView*>())
    {}

    [[nodiscard]] DueList& dueList() { return part<DueList>(window, u"dueList"_s); }

    static QDialog* makeSheet(const Equipment& item, QWidget* parent)
    {
        auto* sheet = new QDialog(parent);
        sheet->setWindowTitle(item.name);
        return sheet;
    }

    MaintenanceOverviewView& view;
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

/// Of a row of its own.
inline int dueRowHeight()
{
    QWidget parent;
    return DueRow(&parent).sizeHint().height();
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
