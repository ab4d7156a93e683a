// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentTypeViewModel.h"
#include "EquipmentViewModel.h"
#include "VisibleUpdate.h"

#include <QWidget>

namespace abissora {

class FigureGrid;
class TypeDistribution;

/// The register in figures, and how its items spread over the types. Reads both catalogues only while it is shown.
class StatisticsView : public QWidget
{
    Q_OBJECT

public:
    /// Both catalogues must outlive it.
    StatisticsView(const EquipmentViewModel& equipment, const EquipmentTypeViewModel& types, QWidget* parent = nullptr);

private:
    void redraw();

    const EquipmentViewModel& m_equipment;
    const EquipmentTypeViewModel& m_types;
    VisibleUpdate m_update;

    FigureGrid* m_figures;
    TypeDistribution* m_distribution;
};

} // namespace abissora
