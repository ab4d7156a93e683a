// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentViewModel.h"
#include "IdGenerator.h"
#include "ImportRows.h"

namespace abissora {

/// What would come of importing a file: each of its rows as it would be stored, and which of them are chosen. Rows that
/// the register has already are chosen by the person only, faulty ones never.
class ImportPlan
{
public:
    /// The types in the context must outlive it.
    ImportPlan(ImportSource source, ImportContext context);

    [[nodiscard]] const QString& fileName() const { return m_source.fileName; }
    /// Nothing for a register, whose columns are what they are.
    [[nodiscard]] const ImportedTable* table() const { return std::get_if<ImportedTable>(&m_source.content); }
    /// "Separatore ; · UTF-8 · Virgola decimale"
    [[nodiscard]] QString format() const;

    [[nodiscard]] ImportSubject subject() const { return m_subject; }
    /// The columns are then what their headings say. Only for a table.
    void setSubject(ImportSubject subject);
    [[nodiscard]] const QList<ImportColumn>& columns() const { return m_columns; }
    /// Only for one that the table has.
    void setField(qsizetype column, ImportField field);
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
    void read();
    [[nodiscard]] QString findColumnsProblem() const;

    ImportSource m_source;
    ImportContext m_context;
    ImportSubject m_subject = ImportSubject::Items;
    QList<ImportField> m_fields; ///< of a table
    QList<ImportColumn> m_columns;
    QString m_columnsProblem;
    QList<ImportRow> m_rows;
    QList<bool> m_isChosen;
};

/// "Importati 12 articoli", "Importata 1 manutenzione"
[[nodiscard]] QString importedText(const ImportedRecords& records);

} // namespace abissora
