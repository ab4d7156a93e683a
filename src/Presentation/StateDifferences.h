// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentTypeViewModel.h"
#include "FieldDifferences.h"
#include "TypeAppearance.h"

#include <QSet>

namespace abissora {

/// One thing that is another in an earlier state than now.
struct DifferenceLine
{
    QString name;
    TypeAppearance look;
    /// "4 manutenzioni"; of a single changed field what it says now, "Numero Seriale: SU456798".
    QString detail;
    QString becomes = {}; ///< of a single changed field what it would say again, "SU456789"

    /// "Computer, Numero Seriale: SU456798 → SU456789"
    [[nodiscard]] QString text() const;

    friend bool operator==(const DifferenceLine&, const DifferenceLine&) = default;
};

/// What comes back, goes or changes, of one sort.
struct DifferenceGroup
{
    enum class Kind { Returning, Vanishing, Changing, Documents };

    /// Of more things only the number is told.
    static constexpr qsizetype mostLines = 100;

    Kind kind;
    QString title;
    qsizetype total = 0;
    QList<DifferenceLine> lines = {};

    void add(const DifferenceLine& line);
    /// "e altri 12"; empty when every one has its line.
    [[nodiscard]] QString rest() const;
};

/// Tells what going back would do; groups without lines are left out.
class StateComparison
{
public:
    /// Both must outlive it.
    StateComparison(const EquipmentTypeViewModel& types, const DateFormat& dates);

    void compareEquipment(const QList<Equipment>& now, const QList<Equipment>& then);
    /// By id, else by name, which is all that items know of their type.
    void compareTypes(const QList<EquipmentTypeModel>& now, const QList<EquipmentTypeModel>& then);
    void addSettings(const QList<FieldDifference>& differences);
    /// The documents among `archived` that the items name.
    void addDocuments(const QList<Equipment>& then, const QSet<QString>& archived);

    [[nodiscard]] QList<DifferenceGroup> groups() const;

private:
    const EquipmentTypeViewModel& m_types;
    const DateFormat& m_dates;
    DifferenceGroup m_returning{DifferenceGroup::Kind::Returning, u"Tornano"_s};
    DifferenceGroup m_vanishing{DifferenceGroup::Kind::Vanishing, u"Spariscono"_s};
    DifferenceGroup m_changing{DifferenceGroup::Kind::Changing, u"Cambiano"_s};
    DifferenceGroup m_typesReturning{DifferenceGroup::Kind::Returning, u"Tipologie che tornano"_s};
    DifferenceGroup m_typesVanishing{DifferenceGroup::Kind::Vanishing, u"Tipologie che spariscono"_s};
    DifferenceGroup m_typesChanging{DifferenceGroup::Kind::Changing, u"Tipologie che cambiano"_s};
    DifferenceGroup m_settings{DifferenceGroup::Kind::Changing, u"Impostazioni"_s};
    DifferenceGroup m_documents{DifferenceGroup::Kind::Documents, u"Documenti che tornano"_s};
};

} // namespace abissora
