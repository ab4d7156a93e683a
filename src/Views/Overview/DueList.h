// SPDX-License-Identifier: MIT
#pragma once

#include "DueRow.h"
#include "RowList.h"

#include <functional>

namespace abissora {

/// The items that need service, one below the other on a card.
class DueList : public RowList
{
    Q_OBJECT

public:
    using Appearance = std::function<TypeAppearance(const Equipment&)>;

    explicit DueList(QScrollArea& area);

    /// `appearance` is asked for rows as they come in sight.
    void setItems(const QList<RegisterSummary::DueItem>& items, Appearance appearance);

    [[nodiscard]] QList<DueRow*> rows() const { return rowsAs<DueRow>(); }

Q_SIGNALS:
    void chosen(const abissora::Equipment& equipment);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QWidget* makeRow() override;
    void fillRow(QWidget& row, qsizetype index) override;

    QList<RegisterSummary::DueItem> m_items;
    Appearance m_appearance;
};

} // namespace abissora
