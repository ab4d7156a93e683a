// SPDX-License-Identifier: MIT
#include "ContentView.h"
#include "Literals.h"
#include "ScreenStage.h"

namespace abissora::gallery {

namespace {

constexpr QSize smallestSize(1000, 700);

QList<Equipment> many()
{
    constexpr auto types = allCases<EquipmentType>();
    QList<Equipment> equipment = items();
    for (int i = 0; i < 250; ++i) {
        const EquipmentType type = types.at(static_cast<std::size_t>(i) % types.size());
        equipment.append(test::makeItem(100 + i, u"%1 numero %2"_s.arg(rawValue(type)).arg(i), type,
                                        today + std::chrono::days(i % 60 - 25)));
    }
    equipment[0].nextServiceDate = today - std::chrono::days(800);
    equipment[0].name = u"Erogatore di riserva con primo stadio bilanciato, due secondi stadi e manometro "
                        "in bar, revisionato dopo l'immersione in grotta"_s;
    return equipment;
}

QList<Equipment> noneDue()
{
    QList<Equipment> equipment = items();
    equipment.removeIf([](const Equipment& item) { return item.nextServiceDate < today + std::chrono::days(31); });
    return equipment;
}

void showOverview(test::RegisterFixture&, MainWindow& window)
{
    selectInSidebar(window, u"maintenance"_s);
}

void showStatistics(test::RegisterFixture&, MainWindow& window)
{
    window.content().setSelectedTab(ContentView::StatisticsTab);
}

} // namespace

QList<Scene> overviewScenes()
{
    return {
        window(u"overview"_s, showOverview),
        window(u"overview-many"_s, showOverview, many()),
        window(u"overview-many-smallest"_s, showOverview, many(), smallestSize),
        window(u"overview-none-due"_s, showOverview, noneDue()),
        window(u"overview-empty"_s, showOverview, {}, smallestSize),
        window(u"statistics"_s, showStatistics),
        window(u"statistics-many"_s, showStatistics, many()),
        window(u"statistics-many-smallest"_s, showStatistics, many(), smallestSize),
        window(u"statistics-empty"_s, showStatistics, {}),
    };
}

} // namespace abissora::gallery
