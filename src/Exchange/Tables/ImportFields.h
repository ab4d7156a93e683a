// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

namespace abissora {

/// What the rows of a table are.
enum class ImportSubject { Items, Records };

/// What a column of a table can hold.
enum class ImportField {
    None,
    Name,
    Type,
    Brand,
    Model,
    SerialNumber,
    PurchaseDate,
    LastService,
    NextService,
    State,
    Notes,
    // of maintenance records
    Date,
    Kind,
    Description,
    PerformedBy,
    Cost,
    Outcome,
};

/// In the order in which they are offered and exported. The items that records belong to are told by the first four.
[[nodiscard]] const QList<ImportField>& fieldsOf(ImportSubject subject);
/// As the screens call it: "Numero Seriale". "Non importare" for none.
[[nodiscard]] QString titleOf(ImportField field, ImportSubject subject);

/// What the first row of a table says its columns are; Italian and English words, in any letter case. Of different
/// words for one field the field's own title counts, else the first one; a heading that stands there twice counts
/// twice.
[[nodiscard]] ImportSubject subjectOf(const QStringList& headings);
[[nodiscard]] QList<ImportField> fieldsOf(const QStringList& headings, ImportSubject subject);

} // namespace abissora
