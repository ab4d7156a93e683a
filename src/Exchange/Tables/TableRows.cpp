// SPDX-License-Identifier: MIT
#include "ImportRows.h"

#include "CostText.h"
#include "ImportValues.h"
#include "Literals.h"
#include "PresentItems.h"
#include "RowCells.h"
#include "ServiceInterval.h"

#include <QSet>

namespace abissora {

namespace {

using importValues::AmountFault;

template <HasRawValues Case>
std::optional<Case> caseNamed(const QString& name)
{
    for (const Case value : allCases<Case>()) {
        if (rawValueView(value).compare(name, Qt::CaseInsensitive) == 0)
            return value;
    }
    return std::nullopt;
}

/// What the row says of the item, or of the item that its record belongs to.
Equipment itemIn(const RowCells& cells)
{
    Equipment item;
    item.name = cells.text(ImportField::Name);
    item.brand = cells.text(ImportField::Brand);
    item.model = cells.text(ImportField::Model);
    item.serialNumber = cells.text(ImportField::SerialNumber);
    return item;
}

class ItemReader
{
public:
    ItemReader(RowCells& cells, const ImportContext& context)
        : m_cells(cells)
        , m_context(context)
        , m_present(context.equipment)
    {}

    void read()
    {
        Equipment& item = m_cells.row().item;
        item = itemIn(m_cells);
        item.notes = m_cells.text(ImportField::Notes);
        if (item.name.trimmed().isEmpty())
            m_cells.complain(ImportField::Name, u"Manca il nome"_s);
        readType(item);
        readDates(item);
        readState(item);
        if (!m_cells.isFaulty() && m_present.contains(item))
            m_cells.row().standing = ImportRow::Standing::Present;
    }

private:
    void readType(Equipment& item)
    {
        const QString name = knownType(m_cells.text(ImportField::Type).trimmed());
        const auto builtIn = fromRawValue<EquipmentType>(name);
        item.type = builtIn.value_or(EquipmentType::other);
        if (!builtIn && !name.isEmpty())
            item.customTypeName = name;
        m_cells.show(ImportField::Type, item.displayTypeName());
    }

    /// As the catalogue or the program writes it; one of just that name before those in other letters.
    [[nodiscard]] QString knownType(const QString& name) const
    {
        const QList<EquipmentTypeModel>& types = m_context.types;
        if (fromRawValue<EquipmentType>(name) ||
            std::ranges::find(types, name, &EquipmentTypeModel::name) != types.end())
            return name;
        if (const auto builtIn = caseNamed<EquipmentType>(name))
            return rawValue(*builtIn);
        const auto known = std::ranges::find_if(types, [&name](const EquipmentTypeModel& type) {
            return type.name.compare(name, Qt::CaseInsensitive) == 0;
        });
        return known != types.end() ? known->name : name;
    }

    void readDates(Equipment& item)
    {
        const auto purchase = m_cells.readDay(ImportField::PurchaseDate);
        const auto last = m_cells.readDay(ImportField::LastService);
        const auto next = m_cells.readDay(ImportField::NextService);
        const std::int64_t interval = serviceInterval::ofType(item.displayTypeName(), m_context.types);
        item.lastServiceDate = last ? *last : next ? lastBefore(*next, interval) : purchase.value_or(m_cells.today());
        item.purchaseDate = purchase.value_or(item.lastServiceDate);
        item.nextServiceDate = next ? *next : m_cells.after(item.lastServiceDate, interval);
        m_cells.showDay(ImportField::PurchaseDate, item.purchaseDate);
        m_cells.showDay(ImportField::LastService, item.lastServiceDate);
        m_cells.showDay(ImportField::NextService, item.nextServiceDate);
    }

    /// An interval before the next one, but never after today.
    [[nodiscard]] Instant lastBefore(Instant next, std::int64_t interval) const
    {
        return std::min(m_cells.today(), m_context.calendar.addDays(next, -interval).value_or(next));
    }

    void readState(Equipment& item)
    {
        if (!m_cells.isEmpty(ImportField::State)) {
            const QString cell = m_cells.text(ImportField::State);
            const auto isActive = importValues::yesOrNo(cell);
            if (!isActive)
                m_cells.complain(ImportField::State, u"Stato sconosciuto: %1"_s.arg(cell));
            item.isActive = isActive.value_or(true);
        }
        m_cells.show(ImportField::State, item.isActive ? u"Attivo"_s : u"Inattivo"_s);
    }

    RowCells& m_cells;
    const ImportContext& m_context;
    PresentItems m_present;
};

class RecordReader
{
public:
    RecordReader(RowCells& cells, const ImportContext& context)
        : m_cells(cells)
        , m_context(context)
        , m_present(context.equipment)
        , m_decimalSign(importValues::decimalSignOf(cells.all(ImportField::Cost)))
    {}

    void read()
    {
        Maintenance& record = m_cells.row().record;
        record.description = m_cells.text(ImportField::Description);
        record.performedBy = m_cells.text(ImportField::PerformedBy);
        record.notes = m_cells.text(ImportField::Notes);
        const Equipment* const item = findItem();
        readKind(record);
        readCost(record);
        readOutcome(record);
        if (m_cells.isEmpty(ImportField::Date))
            m_cells.complain(ImportField::Date, u"Manca la data"_s);
        const auto date = m_cells.readDay(ImportField::Date);
        const auto next = m_cells.readDay(ImportField::NextService);
        if (date)
            m_cells.showDay(ImportField::Date, *date);
        if (m_cells.isFaulty())
            return;
        const std::int64_t interval = serviceInterval::ofItem(*item, m_context.types);
        record.date = *date;
        record.nextServiceDate = next ? *next : m_cells.after(*date, interval);
        m_cells.showDay(ImportField::NextService, record.nextServiceDate);
        if (!m_cells.isFaulty() && isPresent(record, *item))
            m_cells.row().standing = ImportRow::Standing::Present;
    }

private:
    /// Nothing, which is complained of, where the row does not tell one.
    const Equipment* findItem()
    {
        m_cells.row().item = itemIn(m_cells);
        const bool isTold = !m_cells.isEmpty(ImportField::Name) || !m_cells.isEmpty(ImportField::SerialNumber);
        const QList<qsizetype> found = isTold ? m_present.find(m_cells.row().item) : QList<qsizetype>();
        if (found.size() == 1) {
            const Equipment& item = m_context.equipment.at(found.first());
            m_cells.row().ofItem = item.id;
            return &item;
        }
        const bool isNamed = m_cells.has(ImportField::Name) && !m_cells.isEmpty(ImportField::Name);
        const ImportField place =
            isNamed || !m_cells.has(ImportField::SerialNumber) ? ImportField::Name : ImportField::SerialNumber;
        m_cells.complain(place, m_cells.isEmpty(place) ? u"Manca l'articolo"_s
                                : found.isEmpty()      ? u"Nessun articolo così: %1"_s.arg(m_cells.text(place))
                                                       : u"Più articoli così: %1"_s.arg(m_cells.text(place)));
        return nullptr;
    }

    /// A kind of other words is part of what was done, so that it is not lost.
    void readKind(Maintenance& record)
    {
        const QString kind = m_cells.text(ImportField::Kind).trimmed();
        const auto known = caseNamed<MaintenanceType>(kind);
        record.type = known.value_or(MaintenanceType::other);
        if (!known && !kind.isEmpty()) {
            record.description = record.description.isEmpty() ? kind : kind + u": "_s + record.description;
            m_cells.show(ImportField::Description, record.description);
        }
        m_cells.show(ImportField::Kind, rawValue(record.type));
    }

    void readCost(Maintenance& record)
    {
        const QString cell = m_cells.text(ImportField::Cost);
        const auto [value, fault] = importValues::amount(cell, m_decimalSign, m_context.currencySymbol);
        if (fault == AmountFault::NoAmount)
            m_cells.complain(ImportField::Cost, u"Importo non valido: %1"_s.arg(cell));
        else if (fault == AmountFault::Ambiguous)
            m_cells.complain(ImportField::Cost, u"Importo ambiguo: %1"_s.arg(cell));
        else
            m_cells.show(ImportField::Cost, costText::show(value));
        record.cost = value;
    }

    void readOutcome(Maintenance& record)
    {
        if (m_cells.isEmpty(ImportField::Outcome))
            return;
        const QString cell = m_cells.text(ImportField::Outcome);
        record.isCompleted = importValues::yesOrNo(cell);
        if (!record.isCompleted)
            m_cells.complain(ImportField::Outcome, u"Esito sconosciuto: %1"_s.arg(cell));
        else
            m_cells.show(ImportField::Outcome, *record.isCompleted ? u"Avvenuta"_s : u"Non avvenuta"_s);
    }

    [[nodiscard]] bool isPresent(const Maintenance& record, const Equipment& item)
    {
        if (!m_histories.contains(item.id)) {
            QSet<QString>& history = m_histories[item.id];
            for (const Maintenance& other : item.maintenanceHistory)
                history.insert(gist(other));
        }
        return m_histories.value(item.id).contains(gist(record));
    }

    /// What two records that are the same work have in common.
    [[nodiscard]] QString gist(const Maintenance& record) const
    {
        return QStringList{shownDay(record.date, m_context.calendar), rawValue(record.type), record.description}.join(
            u'\n');
    }

    RowCells& m_cells;
    const ImportContext& m_context;
    PresentItems m_present;
    importValues::DecimalSign m_decimalSign;
    QHash<QUuid, QSet<QString>> m_histories; ///< of the items that rows name
};

template <typename Reader>
QList<ImportRow> read(const ImportedTable& table, RowCells& cells, WorkProgress* progress, Reader reader)
{
    QList<ImportRow> rows;
    rows.reserve(table.rows.size());
    WorkSteps steps(progress, table.rows.size());
    for (const csv::Row& row : table.rows) {
        if (!steps.goesOn())
            break;
        cells.begin(row);
        reader.read();
        rows.append(cells.take());
    }
    return rows;
}

} // namespace

QList<ImportRow> tableRows(const ImportedTable& table, ImportSubject subject, const QList<ImportField>& fields,
                           const ImportContext& context, WorkProgress* progress)
{
    const QList<ImportColumn> columns = tableColumns(table, subject, fields);
    RowCells cells(table, columns, context);
    return subject == ImportSubject::Items ? read(table, cells, progress, ItemReader(cells, context))
                                           : read(table, cells, progress, RecordReader(cells, context));
}

QList<ImportColumn> tableColumns(const ImportedTable& table, ImportSubject subject, const QList<ImportField>& fields)
{
    QList<ImportColumn> columns;
    for (qsizetype column = 0; column < fields.size(); ++column)
        columns.append({table.headings.cells.at(column), fields.at(column), titleOf(fields.at(column), subject)});
    if (!fields.contains(ImportField::NextService))
        columns.append({{}, ImportField::NextService, titleOf(ImportField::NextService, subject)});
    return columns;
}

QString shownDay(Instant instant, const Calendar& calendar)
{
    return calendar.local(instant).date().toString(u"dd/MM/yyyy"_s);
}

} // namespace abissora
