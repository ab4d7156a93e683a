// SPDX-License-Identifier: MIT
#include "ImportPlan.h"

#include "CountText.h"
#include "DocumentArchive.h"
#include "ImportValues.h"
#include "Literals.h"

#include <QSet>

namespace abissora {

namespace {

using Standing = ImportRow::Standing;

QString separatorText(QChar separator)
{
    return separator == u'\t' ? u"tabulazione"_s : QString(separator);
}

/// Of the amounts in the table; without any, as tables of this kind usually have them.
QString decimalText(const ImportedTable& table, const QList<ImportField>& fields)
{
    QStringList amounts;
    if (const qsizetype column = fields.indexOf(ImportField::Cost); column >= 0) {
        for (const csv::Row& row : table.rows)
            amounts.append(row.cells.at(column));
    }
    switch (importValues::decimalSignOf(amounts)) {
    case importValues::DecimalSign::Comma:
        return u"Virgola decimale"_s;
    case importValues::DecimalSign::FullStop:
        return u"Punto decimale"_s;
    case importValues::DecimalSign::Both:
        return u"Virgola e punto decimali"_s;
    case importValues::DecimalSign::Unknown:
        break;
    }
    return u"Virgola decimale"_s;
}

QString counted(qsizetype count, const QString& one, const QString& many)
{
    return QString::number(count) + u' ' + (count == 1 ? one : many);
}

/// Another piece of the same data.
void makeAnother(Equipment& item, IdGenerator& ids)
{
    item.id = ids.next();
    for (Maintenance& record : item.maintenanceHistory)
        record.id = ids.next();
}

/// A document belongs to the record that had it first: it goes away with that one.
void leaveDocuments(Equipment& item, QSet<QString>& taken)
{
    for (Maintenance& record : item.maintenanceHistory) {
        for (std::optional<QString>* name : {&record.receiptFileName, &record.certificateFileName}) {
            if (*name && taken.contains(**name))
                name->reset();
            else if (*name)
                taken.insert(**name);
        }
    }
}

} // namespace

ImportPlan::ImportPlan(ImportSource source, ImportContext context, WorkProgress* progress)
    : m_source(std::move(source))
    , m_context(std::move(context))
{
    if (const ImportedTable* const found = table())
        m_reading = usualReading(subjectOf(found->headings.cells));
    readRows(progress);
}

QString ImportPlan::formatText() const
{
    const ImportedTable* found = table();
    if (found == nullptr)
        return u"Registro di Abissora"_s;
    return QStringList{u"Separatore %1"_s.arg(separatorText(found->separator)), found->encoding,
                       decimalText(*found, m_reading.fields)}
        .join(u" · "_s);
}

ImportReading ImportPlan::usualReading(ImportSubject subject) const
{
    return {subject, fieldsOf(table()->headings.cells, subject)};
}

void ImportPlan::read(const ImportReading& reading, WorkProgress* progress)
{
    m_reading = reading;
    readRows(progress);
}

bool ImportPlan::canBeChosen(qsizetype row) const
{
    return m_rows.at(row).standing != Standing::Faulty;
}

void ImportPlan::setChosen(qsizetype row, bool isChosen)
{
    m_isChosen[row] = isChosen && canBeChosen(row);
}

void ImportPlan::setNewChosen(bool areChosen)
{
    for (qsizetype row = 0; row < m_rows.size(); ++row)
        m_isChosen[row] = areChosen && m_rows.at(row).standing == Standing::New;
}

bool ImportPlan::areNewChosen() const
{
    for (qsizetype row = 0; row < m_rows.size(); ++row) {
        if (m_rows.at(row).standing == Standing::New && !m_isChosen.at(row))
            return false;
    }
    return chosenCount() > 0;
}

qsizetype ImportPlan::count(Standing standing) const
{
    return std::ranges::count(m_rows, standing, &ImportRow::standing);
}

QString ImportPlan::summary() const
{
    QString text =
        counted(m_rows.size(), u"riga"_s, u"righe"_s) + u": "_s + counted(count(Standing::New), u"nuova"_s, u"nuove"_s);
    if (const qsizetype present = count(Standing::Present); present > 0)
        text += u", "_s + counted(present, u"già presente"_s, u"già presenti"_s);
    return text;
}

QString ImportPlan::faultSummary() const
{
    const qsizetype faulty = count(Standing::Faulty);
    return faulty == 0 ? QString() : counted(faulty, u"con errori"_s, u"con errori"_s);
}

QStringList ImportPlan::faults(qsizetype most) const
{
    QStringList faults;
    for (const ImportRow& row : m_rows) {
        for (qsizetype column = 0; column < row.cells.size() && faults.size() < most; ++column) {
            const QString& problem = row.cells.at(column).problem;
            if (problem.isEmpty())
                continue;
            // What is counted stands in no column of the file.
            const bool isInFile = table() != nullptr && column < table()->headings.cells.size();
            faults.append(
                isInFile ? csv::at(row.line, column + 1, problem)
                         : u"Riga %1, %2: %3"_s.arg(QString::number(row.line), m_columns.at(column).title, problem));
        }
    }
    return faults;
}

ImportedRecords ImportPlan::records(IdGenerator& ids) const
{
    QSet<QUuid> taken;
    for (const Equipment& item : m_context.equipment)
        taken.insert(item.id);
    QSet<QString> documents = documentNames(m_context.equipment);
    ImportedRecords imported;
    for (qsizetype i = 0; i < m_rows.size(); ++i) {
        if (!m_isChosen.at(i))
            continue;
        if (subject() == ImportSubject::Records) {
            imported.records.append({m_rows.at(i).ofItem, m_rows.at(i).record});
            imported.records.last().record.id = ids.next();
            continue;
        }
        Equipment item = m_rows.at(i).item;
        if (item.id.isNull() || taken.contains(item.id))
            makeAnother(item, ids);
        leaveDocuments(item, documents);
        taken.insert(item.id);
        imported.items.append(std::move(item));
    }
    return imported;
}

QList<EquipmentTypeModel> ImportPlan::types(IdGenerator& ids) const
{
    const auto* document = std::get_if<RegisterDocument>(&m_source.content);
    if (document == nullptr)
        return {};
    QSet<QString> names;
    QSet<QUuid> taken;
    for (const EquipmentTypeModel& type : m_context.types) {
        names.insert(type.name);
        taken.insert(type.id);
    }
    QList<EquipmentTypeModel> added;
    for (EquipmentTypeModel type : document->equipmentTypes) {
        if (names.contains(type.name))
            continue;
        if (type.id.isNull() || taken.contains(type.id))
            type.id = ids.next();
        names.insert(type.name);
        taken.insert(type.id);
        added.append(std::move(type));
    }
    return added;
}

void ImportPlan::readRows(WorkProgress* progress)
{
    const ImportedTable* found = table();
    m_format = formatText();
    m_columns = found != nullptr ? tableColumns(*found, m_reading.subject, m_reading.fields) : registerColumns();
    m_columnsProblem = found != nullptr ? findColumnsProblem() : QString();
    if (!m_columnsProblem.isEmpty())
        m_rows.clear();
    else
        m_rows = found != nullptr ? tableRows(*found, m_reading.subject, m_reading.fields, m_context, progress)
                                  : registerRows(std::get<RegisterDocument>(m_source.content), m_context, progress);
    m_isChosen = QList<bool>(m_rows.size(), false);
    setNewChosen(true);
}

QString ImportPlan::findColumnsProblem() const
{
    const csv::Row& headings = table()->headings;
    for (qsizetype column = 0; column < m_reading.fields.size(); ++column) {
        const ImportField field = m_reading.fields.at(column);
        if (const qsizetype first = m_reading.fields.indexOf(field); field != ImportField::None && first != column)
            return csv::at(
                headings.line, column + 1,
                u"«%1» c'è già nella colonna %2."_s.arg(titleOf(field, subject()), QString::number(first + 1)));
    }
    const auto isMissing = [&](ImportField field) { return !m_reading.fields.contains(field); };
    const auto missing = [&](ImportField field) { return u"Nessuna colonna è «%1»."_s.arg(titleOf(field, subject())); };
    if (subject() == ImportSubject::Items)
        return isMissing(ImportField::Name) ? missing(ImportField::Name) : QString();
    if (isMissing(ImportField::Name) && isMissing(ImportField::SerialNumber))
        return missing(ImportField::Name);
    return isMissing(ImportField::Date) ? missing(ImportField::Date) : QString();
}

QString importedText(const ImportedRecords& records)
{
    if (records.items.isEmpty())
        return (records.records.size() == 1 ? u"Importata "_s : u"Importate "_s) + recordsText(records.records.size());
    return (records.items.size() == 1 ? u"Importato "_s : u"Importati "_s) + itemsText(records.items.size());
}

} // namespace abissora
