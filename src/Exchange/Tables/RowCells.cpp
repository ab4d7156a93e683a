// SPDX-License-Identifier: MIT
#include "RowCells.h"

#include "ForeignText.h"
#include "Literals.h"

#include <QTime>

namespace abissora {

namespace {

/// A day that came without a time of day: at noon it is the same day in most of the world.
QTime timeOfDay()
{
    return {12, 0};
}

} // namespace

RowCells::RowCells(const ImportedTable& table, const QList<ImportColumn>& columns, const ImportContext& context)
    : m_table(table)
    , m_columns(columns)
    , m_context(context)
{
    for (qsizetype column = 0; column < m_columns.size(); ++column)
        m_columnOf.insert(m_columns.at(column).field, column);
    for (const ImportField field :
         {ImportField::PurchaseDate, ImportField::LastService, ImportField::NextService, ImportField::Date})
        m_dayOrders.insert(field, importValues::dayOrderOf(all(field)));
}

void RowCells::begin(const csv::Row& row)
{
    m_row = {};
    m_row.line = row.line;
    m_row.cells.resize(m_columns.size());
    for (qsizetype column = 0; column < row.cells.size(); ++column)
        m_row.cells[column].text = csv::restored(row.cells.at(column));
}

QStringList RowCells::all(ImportField field) const
{
    QStringList cells;
    const qsizetype column = m_columnOf.value(field, -1);
    if (column < 0 || column >= m_table.headings.cells.size())
        return cells;
    for (const csv::Row& row : m_table.rows)
        cells.append(row.cells.at(column));
    return cells;
}

QString RowCells::text(ImportField field) const
{
    const qsizetype column = m_columnOf.value(field, -1);
    return column < 0 ? QString() : m_row.cells.at(column).text;
}

void RowCells::show(ImportField field, const QString& shown)
{
    if (const qsizetype column = m_columnOf.value(field, -1); column >= 0)
        m_row.cells[column].text = shown;
}

void RowCells::showDay(ImportField field, Instant instant)
{
    show(field, shownDay(instant, m_context.calendar));
}

void RowCells::complain(ImportField field, const QString& problem)
{
    m_row.standing = ImportRow::Standing::Faulty;
    // The file's own words stand in it.
    constexpr qsizetype longest = 120;
    m_row.cells[m_columnOf.value(field, 0)].problem = shownLine(problem, longest);
}

std::optional<Instant> RowCells::readDay(ImportField field)
{
    if (isEmpty(field))
        return std::nullopt;
    const auto day = importValues::day(text(field), m_dayOrders.value(field));
    const auto instant = day ? m_context.calendar.instant(*day, timeOfDay()) : std::nullopt;
    if (!instant)
        complain(field, u"Data non valida: %1"_s.arg(text(field)));
    return instant;
}

Instant RowCells::today() const
{
    const Calendar& calendar = m_context.calendar;
    return calendar.instant(calendar.local(m_context.now).date(), timeOfDay()).value_or(m_context.now);
}

Instant RowCells::after(Instant day, std::int64_t days)
{
    const auto next = m_context.calendar.addDays(day, days);
    if (!next)
        complain(ImportField::NextService, u"Data non valida"_s);
    return next.value_or(day);
}

} // namespace abissora
