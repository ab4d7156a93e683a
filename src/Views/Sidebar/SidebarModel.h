// SPDX-License-Identifier: MIT
#pragma once

#include "Literals.h"
#include "TypeAppearance.h"

#include <QAbstractListModel>

namespace abissora {

/// The rows of the sidebar: section titles, selectable rows with a tag each, a divider.
class SidebarModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role { TagRole = Qt::UserRole, KindRole, BadgeRole };
    enum Kind { SectionTitle, Entry, Divider };
    Q_ENUM(Kind)

    explicit SidebarModel(QObject* parent = nullptr);

    /// One row per type under "Categorie", in this order. Does nothing when they are what is shown already.
    void setTypes(const QList<EquipmentTypeModel>& types);
    /// Shown on "Manutenzione scaduta"; 0 shows none.
    void setBadge(qsizetype count);

    /// The first row with this tag; -1 when there is none.
    [[nodiscard]] int rowOf(const QString& tag) const;
    [[nodiscard]] QString tagOf(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    struct Row
    {
        Kind kind = Entry;
        QString text;
        QString tag;
        TypeAppearance appearance;

        friend bool operator==(const Row&, const Row&) = default;
    };

    [[nodiscard]] static QList<Row> rowsFor(const QList<EquipmentTypeModel>& types);

    QList<Row> m_rows;
    qsizetype m_badge = 0;
};

/// Tags of the fixed rows, and what the tags of the categories begin with.
namespace sidebar {
inline const QString all = u"all"_s;
inline const QString maintenance = u"maintenance"_s;
inline const QString settings = u"settings"_s;
inline const QString typePrefix = u"type_"_s;
} // namespace sidebar

} // namespace abissora
