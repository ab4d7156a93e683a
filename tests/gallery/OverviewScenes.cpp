// SPDX-License-Identifier: MIT
#include "ContentView.h"
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
        equipment.append(test::makeItem(100 + i, QStringLiteral("%1 numero %2").arg(rawValue(type)).arg(i), type,
                                        today + std::chrono::days(i % 60 - 25)));
    }
    equipment[0].nextServiceDate = today - std::chrono::days(800);
    equipment[0].name =
        QStringLiteral("Erogatore di riserva con primo stadio bilanciato, due secondi stadi e manometro "
                       "in bar, revisionato dopo l'immersione in grotta");
    return equipment;
}

QList<Equipment> noneDue()
{
    QList<Equipment> equipment = items();
    equipment.removeIf([](const Equipment& item) { return item.nextServiceDate < today + std::chrono::days(31); });
    return equipment;
}

void showOverview(test::ScreenFixture&, MainWindow& window)
{
    selectInSidebar(window, QStringLiteral("maintenance"));
}

void showStatistics(test::ScreenFixture&, MainWindow& window)
{
    window.content().setSelectedTab(ContentView::StatisticsTab);
}

} // namespace

QList<Scene> overviewScenes()
{
    return {
        window(QStringLiteral("overview"), showOverview),
        window(QStringLiteral("overview-many"), showOverview, many()),
        window(QStringLiteral("overview-many-smallest"), showOverview, many(), smallestSize),
        window(QStringLiteral("overview-none-due"), showOverview, noneDue()),
        window(QStringLiteral("overview-empty"), showOverview, {}, smallestSize),
        window(QStringLiteral("statistics"), showStatistics),
        window(QStringLiteral("statistics-many"), showStatistics, many()),
        window(QStringLiteral("statistics-many-smallest"), showStatistics, many(), smallestSize),
        window(QStringLiteral("statistics-empty"), showStatistics, {}),
    };
}

} // namespace abissora::gallery
