// SPDX-License-Identifier: MIT
#pragma once

#include "Console.h"
#include "EquipmentViewModel.h"
#include "Literals.h"
#include "TypeAppearance.h"

namespace abissora {

/// Tags of the fixed rows, and what the tags of the categories begin with.
namespace sidebar {
inline const QString all = u"all"_s;
inline const QString maintenance = u"maintenance"_s;
inline const QString settings = u"settings"_s;
inline const QString typePrefix = u"type_"_s;
} // namespace sidebar

/// A section's title, an entry with its tag, or a divider.
struct SidebarRow
{
    enum Kind { SectionTitle, Entry, Divider };

    Kind kind = Entry;
    QString text;
    QString tag;
    TypeAppearance appearance;

    friend bool operator==(const SidebarRow&, const SidebarRow&) = default;
};

/// With one row per type under "Categorie", in this order.
[[nodiscard]] QList<SidebarRow> sidebarRows(const QList<EquipmentTypeModel>& types);

/// The selected entry drives the catalogue's filters and follows them.
class SidebarSelection : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive it. A filter that is set already moves nothing.
    SidebarSelection(EquipmentViewModel& equipment, Console& console, QObject* parent = nullptr);

    /// Nothing while no entry is selected.
    [[nodiscard]] const std::optional<QString>& tag() const { return m_tag; }
    /// Another entry than the selected one acts on tabs and filters, after the signal.
    void select(const std::optional<QString>& tag);

    /// Selects what belongs to the catalogue's filter, if that has changed since the last call.
    void followFilter();

Q_SIGNALS:
    void changed();
    /// The selection asks for a tab of the main window.
    void tabRequested(int tab);

private:
    void act();
    void synchronise(const QString& tag);

    EquipmentViewModel& m_equipment;
    Console& m_console;
    std::optional<QString> m_tag = sidebar::all;
    std::optional<QString> m_lastFilterTypeName;
};

} // namespace abissora
