// SPDX-License-Identifier: MIT
#pragma once

#include "Calendar.h"
#include "Equipment.h"
#include "EquipmentTypeModel.h"
#include "FilePanel.h"
#include "WorkProgress.h"

namespace abissora {

/// In the order in which they are offered.
enum class ExportForm { Items, Records, Calendar, Register };

/// Their names and suffixes: csv for the first two, ics, json.
[[nodiscard]] const QList<SaveFormat>& exportFormats();
/// The form that a file's name asks for; of a table, that of `table`. Nothing for other names.
[[nodiscard]] std::optional<ExportForm> exportFormOf(const QString& path, ExportForm table = ExportForm::Items);

/// A register that goes out, as it is at this moment: a value, with which any thread may work.
struct ExportSource
{
    QList<Equipment> equipment;
    QList<EquipmentTypeModel> types;
    Calendar calendar;
    Instant now{};
    QLocale locale;  ///< whose separators tables have
    QString version; ///< of the program
};

/// Not whole when it was cancelled meanwhile.
[[nodiscard]] QByteArray exported(ExportForm form, const ExportSource& source, WorkProgress* progress = nullptr);

/// "Esportati 12 articoli", as many as went out.
[[nodiscard]] QString exportedText(ExportForm form, const ExportSource& source);

} // namespace abissora
