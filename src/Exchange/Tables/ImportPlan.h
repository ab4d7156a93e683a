// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentViewModel.h"
#include "IdGenerator.h"
#include "ImportRows.h"

namespace abissora {

/// How the columns of a table are read.
struct ImportReading
{
    ImportSubject subject = ImportSubject::Items;
    QList<ImportField> fields; ///< one for each column

    friend bool operator==(const ImportReading&, const ImportReading&) = default;
};

/// What would come of importing a file: each of its rows as it would be stored, and which of them are chosen. Rows that
/// the register has already are chosen by the person only, faulty ones never. A value, with which any thread may work.
class ImportPlan
{
public:
    /// A table is read as its headings say. Once it is cancelled, a plan is of no more use; likewise in read().
    ImportPlan(ImportSource source, ImportContext context, WorkProgress* progress = nullptr);

    [[nodiscard]] const ImportContext& context() const { return m_context; }

    [[nodiscard]] const QString& fileName() const { return m_source.fileName; }
    /// Nothing for a register, whose columns are what they are.
    [[nodiscard]] const ImportedTable* table() const { return std::get_if<ImportedTable>(&m_source.content); }
    /// "Separatore ; · UTF-8 · Virgola decimale"
    [[nodiscard]] const QString& format() const { return m_format; }

    [[nodiscard]] ImportSubject subject() const { return m_reading.subject; }
    /// Empty for a register.
    [[nodiscard]] const ImportReading& reading() const { return m_reading; }
    /// What the headings say of rows about `subject`. Only for a table, as read().
    [[nodiscard]] ImportReading usualReading(ImportSubject subject) const;
    /// Reads all rows anew.
    void read(const ImportReading& reading, WorkProgress* progress = nullptr);
    [[nodiscard]] const QList<ImportColumn>& columns() const { return m_columns; }
    /// Why no row can be read; empty when nothing is wrong with the columns.
    [[nodiscard]] const QString& columnsProblem() const { return m_columnsProblem; }

    /// None while something is wrong with the columns.
    [[nodiscard]] const QList<ImportRow>& rows() const { return m_rows; }
    [[nodiscard]] bool isChosen(qsizetype row) const { return m_isChosen.at(row); }
    [[nodiscard]] bool canBeChosen(qsizetype row) const;
    void setChosen(qsizetype row, bool isChosen);
    /// True chooses every row that is new, and no others.
    void setNewChosen(bool areChosen);
    [[nodiscard]] bool areNewChosen() const;

    [[nodiscard]] qsizetype chosenCount() const { return m_isChosen.count(true); }
    [[nodiscard]] qsizetype count(ImportRow::Standing standing) const;

    /// "14 righe: 12 nuove, 1 già presente"
    [[nodiscard]] QString summary() const;
    /// "1 con errori"; empty when there are none.
    [[nodiscard]] QString faultSummary() const;
    /// The first faults, a line each: "Riga 5, colonna 6: Data non valida: 31/02/2024".
    [[nodiscard]] QStringList faults(qsizetype most) const;

    /// What the chosen rows come to, under ids that the register has not.
    [[nodiscard]] ImportedRecords records(IdGenerator& ids) const;
    /// The types of a register whose names are new.
    [[nodiscard]] QList<EquipmentTypeModel> types(IdGenerator& ids) const;

private:
    void readRows(WorkProgress* progress);
    [[nodiscard]] QString formatText() const;
    [[nodiscard]] QString findColumnsProblem() const;

    ImportSource m_source;
    ImportContext m_context;
    ImportReading m_reading;
    QString m_format;
    QList<ImportColumn> m_columns;
    QString m_columnsProblem;
    QList<ImportRow> m_rows;
    QList<bool> m_isChosen;
};

/// "Importati 12 articoli", "Importata 1 manutenzione"
[[nodiscard]] QString importedText(const ImportedRecords& records);

} // namespace abissora
