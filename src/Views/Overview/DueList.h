// SPDX-License-Identifier: MIT
#pragma once

#include "DueRow.h"

#include <QFrame>
#include <map>

class QScrollArea;

namespace abissora {

/// The items that need service, one below the other on a card. It is as high as all of them, but only the rows in sight
/// exist, with those beside the focus and the first and the last one, so that Tab walks through thousands of items as
/// if every row were there.
class DueList : public QFrame
{
    Q_OBJECT

public:
    using Appearance = std::function<TypeAppearance(const Equipment&)>;

    /// Lies somewhere inside the area's widget, which must outlive it.
    explicit DueList(QScrollArea& area);

    /// `appearance` is asked for rows as they come in sight. The focus stays on its item; when that is gone, in its
    /// place.
    void setItems(const QList<RegisterSummary::DueItem>& items, Appearance appearance);
    [[nodiscard]] qsizetype itemCount() const { return m_items.size(); }

    /// From top to bottom.
    [[nodiscard]] QList<DueRow*> rows() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void chosen(const abissora::Equipment& equipment);

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] int pitch() const { return m_rowHeight + 1; }
    [[nodiscard]] QRect partInSight() const;
    /// The index of the row with the focus; -1 when none has it.
    [[nodiscard]] int focusedIndex() const;
    [[nodiscard]] QList<int> wantedIndexes() const;
    [[nodiscard]] DueRow* makeRow();
    [[nodiscard]] int indexOf(const DueRow* row) const;
    void keepFocusOnItsItem(int index, const QUuid& id);
    void arrange();
    void place(int index, DueRow& row) const;
    void chainRows();
    void reveal(int index);
    void walk(int from, DueRow::Part part, int key);

    QScrollArea& m_area;
    QList<RegisterSummary::DueItem> m_items;
    Appearance m_appearance;
    std::map<int, DueRow*> m_rows;
    std::vector<DueRow*> m_spare;
    int m_rowHeight;
};

} // namespace abissora
