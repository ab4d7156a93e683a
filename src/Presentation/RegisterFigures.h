// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentTypeModel.h"
#include "RegisterSummary.h"
#include "TypeAppearance.h"

namespace abissora {

/// A figure of the register with its card's title, symbol and colour.
struct RegisterFigure
{
    QString title;
    QString symbol;
    NamedColor color = NamedColor::primary;
    qsizetype value = 0;
};

/// The overview's, in their order.
[[nodiscard]] QList<RegisterFigure> overviewFigures(const RegisterSummary& summary);
/// The statistics', in their order.
[[nodiscard]] QList<RegisterFigure> statisticsFigures(const RegisterSummary& summary, qsizetype types);

/// How long an item is due, whichever side of today its date lies on.
[[nodiscard]] QString dueText(const RegisterSummary::DueItem& item);

/// How many active items are of a type.
struct TypeShare
{
    QString name;
    TypeAppearance appearance;
    qsizetype count = 0;

    friend bool operator==(const TypeShare&, const TypeShare&) = default;
};

/// One for each type, in this order.
[[nodiscard]] QList<TypeShare> typeShares(const QList<Equipment>& equipment, const QList<EquipmentTypeModel>& types);

} // namespace abissora
