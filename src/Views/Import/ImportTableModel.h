// SPDX-License-Identifier: MIT
#pragma once

#include "ImportPlan.h"
#include "TypeAppearance.h"

#include <QAbstractTableModel>

namespace abissora {

/// The rows of a plan, the first column telling which are chosen. While something is wrong with the plan's columns,
/// the rows of the file as they stand there, of which none can be chosen.
class ImportTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    static constexpr int ChoiceColumn = 0;

    /// What a cell is painted from.
    struct Cell
    {
        QString text;
        QString note; ///< below the text
        QString problem;
        std::optional<TypeAppearance> appearance;
        bool isName = false;
        bool isPresent = false;
    };

    /// Both must outlive it.
    ImportTableModel(ImportPlan& plan, const EquipmentTypeViewModel& types, QObject* parent = nullptr);

    /// Another one in the place of the plan.
    void setPlan(ImportPlan plan);
    void setNewChosen(bool areChosen);
    void toggle(int row);

    [[nodiscard]] Cell cell(const QModelIndex& index) const;
    /// Where a column of the plan stands.
    [[nodiscard]] static int columnOf(qsizetype planColumn) { return static_cast<int>(planColumn) + 1; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

Q_SIGNALS:
    void choiceChanged();

private:
    [[nodiscard]] bool isReadable() const { return m_plan.columnsProblem().isEmpty(); }
    void announceChoices();

    ImportPlan& m_plan;
    const EquipmentTypeViewModel& m_types;
};

} // namespace abissora
