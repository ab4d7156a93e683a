// SPDX-License-Identifier: MIT
#pragma once

#include "Calendar.h"
#include "EquipmentTypeModel.h"
#include "ImportFields.h"
#include "ImportSource.h"
#include "WorkProgress.h"

namespace abissora {

/// The register into which something is imported, as it is at that moment: a value, with which any thread may work.
struct ImportContext
{
    QList<Equipment> equipment;
    QList<EquipmentTypeModel> types;
    Calendar calendar;
    Instant now{};
    QString currencySymbol; ///< may stand beside an amount
};

/// One column of what is shown before it is imported.
struct ImportColumn
{
    QString heading; ///< as the file has it; empty for one that the file has not
    ImportField field = ImportField::None;
    QString title; ///< of the field, or of what is counted

    friend bool operator==(const ImportColumn&, const ImportColumn&) = default;
};

struct ImportCell
{
    QString text;    ///< as it would be stored
    QString problem; ///< in its place; empty when there is none

    friend bool operator==(const ImportCell&, const ImportCell&) = default;
};

struct ImportRow
{
    enum class Standing {
        New,
        Present, ///< the register has it already
        Faulty,
    };

    int line = 0; ///< of the file
    Standing standing = Standing::New;
    QList<ImportCell> cells; ///< one for each column
    Equipment item;          ///< what would be stored; of a row with a record, the item as the row names it
    Maintenance record;
    QUuid ofItem; ///< the record's
};

/// Reads the rows of a table as its columns say: `fields` has one for each heading, none of them twice. Once it is
/// cancelled, not all of them; likewise below.
[[nodiscard]] QList<ImportRow> tableRows(const ImportedTable& table, ImportSubject subject,
                                         const QList<ImportField>& fields, const ImportContext& context,
                                         WorkProgress* progress = nullptr);
/// The columns that the table itself has, and one for the next service where it has none: it follows from the last one.
[[nodiscard]] QList<ImportColumn> tableColumns(const ImportedTable& table, ImportSubject subject,
                                               const QList<ImportField>& fields);

[[nodiscard]] QList<ImportRow> registerRows(const RegisterDocument& document, const ImportContext& context,
                                            WorkProgress* progress = nullptr);
[[nodiscard]] QList<ImportColumn> registerColumns();

/// "31/12/2026"
[[nodiscard]] QString shownDay(Instant instant, const Calendar& calendar);

} // namespace abissora
