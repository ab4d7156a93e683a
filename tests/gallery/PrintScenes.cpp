// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "ScreenStage.h"

namespace abissora::gallery {

namespace {

Equipment withHistory(Equipment item)
{
    constexpr int records = 19;
    for (int i = 0; i < records; ++i) {
        Maintenance record =
            test::makeRecord(500 + i, 200 * i + 31, u"Revisione completa del primo e del secondo stadio"_s);
        record.type = allCases<MaintenanceType>().at(std::size_t(i) % 5);
        record.cost = i % 3 == 0 ? 0 : 12.5 * i;
        record.isCompleted = i != 4;
        item.maintenanceHistory.append(record);
    }
    return item;
}

/// The sheet by itself, for an item or for none.
Scene printSheet(const QString& name, bool hasItem)
{
    return form(name, [hasItem](test::ShellFixture& f) {
        const auto item = hasItem ? std::optional(withHistory(f.equipment.equipment().first())) : std::nullopt;
        return std::unique_ptr<QWidget>(f.makePrint(item, nullptr));
    });
}

} // namespace

QList<Scene> printScenes()
{
    return {printSheet(u"print-item"_s, true), printSheet(u"print-list"_s, false)};
}

} // namespace abissora::gallery
