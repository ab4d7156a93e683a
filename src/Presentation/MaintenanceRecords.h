// SPDX-License-Identifier: MIT
#pragma once

#include "Maintenance.h"
#include "TypeAppearance.h"

#include <QList>
#include <array>

namespace abissora {

/// One of the two documents that a record may carry.
enum class DocumentSlot { Receipt, Certificate };
inline constexpr std::array documentSlots{DocumentSlot::Receipt, DocumentSlot::Certificate};

/// "Scontrino" or "Certificato".
[[nodiscard]] QString documentLabel(DocumentSlot slot);
[[nodiscard]] std::optional<QString>& documentName(Maintenance& maintenance, DocumentSlot slot);
[[nodiscard]] const std::optional<QString>& documentName(const Maintenance& maintenance, DocumentSlot slot);
/// Empties every slot that names the file.
void forgetDocument(Maintenance& maintenance, const QString& name);

[[nodiscard]] TypeAppearance appearanceOf(MaintenanceType type);

/// Records of equal date keep their order.
[[nodiscard]] QList<Maintenance> newestFirst(const QList<Maintenance>& history);
[[nodiscard]] std::optional<Maintenance> recordOf(const QList<Maintenance>& history, const QUuid& id);
/// Replaces the first record of the same id; does nothing when there is none.
void replaceRecord(QList<Maintenance>& history, const Maintenance& record);

} // namespace abissora
