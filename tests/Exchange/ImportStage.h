// SPDX-License-Identifier: MIT
#pragma once

#include "ImportPlan.h"
#include "RegisterFixture.h"

namespace abissora::test {

/// A register into which texts are imported, at the fixed clock's time, with the catalogue of a new one.
struct ImportStage : RegisterFixture
{
    explicit ImportStage(const QList<Equipment>& stored = {})
        : RegisterFixture(stored)
    {}

    [[nodiscard]] ImportContext context() const
    {
        return {equipment.equipment(), types.types(), calendar, clock.now(), u"€"_s};
    }

    /// Of a text that can be imported.
    [[nodiscard]] ImportPlan plan(const QByteArray& text) const
    {
        auto source = parseImport(u"a.csv"_s, text);
        if (!source)
            qFatal("%s", qPrintable(source.error()));
        return {*std::move(source), context()};
    }

    /// Stores what is chosen.
    void import(const ImportPlan& plan)
    {
        if (const auto added = plan.types(ids); !added.isEmpty())
            types.importTypes(added);
        equipment.importRecords(plan.records(ids));
    }

    [[nodiscard]] QString day(Instant instant) const { return calendar.local(instant).date().toString(Qt::ISODate); }
};

/// The texts of a row as they would be stored, "!" before what is wrong in a cell.
inline QString shownRow(const ImportRow& row)
{
    QStringList cells;
    for (const ImportCell& cell : row.cells)
        cells.append(cell.problem.isEmpty() ? cell.text : u'!' + cell.problem);
    return cells.join(u'|');
}

} // namespace abissora::test
