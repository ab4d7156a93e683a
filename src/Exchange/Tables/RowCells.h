// SPDX-License-Identifier: MIT
#pragma once

#include "ImportRows.h"
#include "ImportValues.h"

#include <QHash>

namespace abissora {

/// The cells of one row of a table after the other, by what their columns hold, and what is wrong in them.
class RowCells
{
public:
    /// What is passed by reference must outlive it.
    RowCells(const ImportedTable& table, const QList<ImportColumn>& columns, const ImportContext& context);

    void begin(const csv::Row& row);
    /// The row as it was read; the next one begins.
    [[nodiscard]] ImportRow take() { return std::move(m_row); }
    [[nodiscard]] ImportRow& row() { return m_row; }
    [[nodiscard]] bool isFaulty() const { return m_row.standing == ImportRow::Standing::Faulty; }

    [[nodiscard]] bool has(ImportField field) const { return m_columnOf.contains(field); }
    /// Of every row; nothing for a field that the table has not.
    [[nodiscard]] QStringList all(ImportField field) const;
    /// Empty for a field that the table has not.
    [[nodiscard]] QString text(ImportField field) const;
    [[nodiscard]] bool isEmpty(ImportField field) const { return text(field).trimmed().isEmpty(); }
    /// What is shown in the place of what the file has.
    void show(ImportField field, const QString& shown);
    void showDay(ImportField field, Instant instant);
    /// The row is faulty, in the field's cell or else in the first one.
    void complain(ImportField field, const QString& problem);

    /// Nothing for an empty cell, and for one that holds no day, which is complained of.
    [[nodiscard]] std::optional<Instant> readDay(ImportField field);
    [[nodiscard]] Instant today() const;
    /// So many days later; a day beyond the calendar is complained of as the next service.
    [[nodiscard]] Instant after(Instant day, std::int64_t days);

private:
    const ImportedTable& m_table;
    const QList<ImportColumn>& m_columns;
    const ImportContext& m_context;
    QHash<ImportField, qsizetype> m_columnOf;
    QHash<ImportField, importValues::DayOrder> m_dayOrders;
    ImportRow m_row;
};

} // namespace abissora
