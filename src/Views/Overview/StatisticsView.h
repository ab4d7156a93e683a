// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentTypeViewModel.h"
#include "EquipmentViewModel.h"
#include "VisibleUpdate.h"

#include <QWidget>

namespace abissora {

class StatCard;
class TypeDistribution;

/// The register in figures, and how its items spread over the types. Reads both catalogues only while it is shown.
class StatisticsView : public QWidget
{
    Q_OBJECT

public:
    /// Both catalogues must outlive it.
    StatisticsView(const EquipmentViewModel& equipment, const EquipmentTypeViewModel& types, QWidget* parent = nullptr);

private:
    void buildLayout();
    void redraw();

    const EquipmentViewModel& m_equipment;
    const EquipmentTypeViewModel& m_catalogue;
    VisibleUpdate m_update;

    StatCard* m_total;
    StatCard* m_active;
    StatCard* m_due;
    StatCard* m_expiring;
    StatCard* m_inOrder;
    StatCard* m_types;
    TypeDistribution* m_distribution;
};

} // namespace abissora
