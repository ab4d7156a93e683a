// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <QHash>
#include <QUuid>
#include <map>
#include <vector>

class QAbstractButton;
class QScrollArea;

namespace abissora {

/// Items one below the other, each in a row of widgets. It is as high as all of them, but only the rows in sight exist,
/// with those beside the one that had the focus last and the first and the last one, so that Tab walks through
/// thousands of items as if every row were there. Rows that leave come back for other items.
///
/// Every height is exact from the start, so that nothing jumps when rows come in sight: a row that is never shown
/// measures one item of each shape, again when width or text size change.
class RowList : public QFrame
{
    Q_OBJECT

public:
    /// Whether up, down, page up, page down, home and end walk through the rows, each row at the same button.
    enum class Keys { Free, WalkRows };

    struct Layout
    {
        Keys keys = Keys::Free;
        int gap = 0;     ///< between two rows, with a line in its middle
        int border = 0;  ///< left free around all rows
        int reserve = 2; ///< rows kept ready above and below what is in sight
    };

    /// Lies somewhere inside the area's widget, or is it; the area must outlive it.
    RowList(QScrollArea& area, const Layout& layout);

    [[nodiscard]] qsizetype itemCount() const { return m_ids.size(); }
    /// Those that exist, from top to bottom.
    [[nodiscard]] QList<QWidget*> rows() const { return rowsAs<QWidget>(); }

    /// As wide as an empty row.
    [[nodiscard]] QSize sizeHint() const override { return minimumSizeHint(); }
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    /// Shows a row for each, which fillRow() knows already. The focus stays on its item; when that is gone, in its
    /// place.
    void showItems(const QList<QUuid>& ids);

    /// A child of this without an item. What takes the focus in it are buttons.
    virtual QWidget* makeRow() = 0;
    virtual void fillRow(QWidget& row, qsizetype index) = 0;
    /// What the height of the item's row depends on, the width apart: items of one shape have rows of one height, of
    /// the empty shape as high as a row without an item. Cheaper to tell than to measure.
    [[nodiscard]] virtual QString shapeOf(const QWidget& /*ruler*/, qsizetype /*index*/) const { return {}; }
    /// Other rows exist, or in another order.
    virtual void rowsChanged() {}

    template <typename Row>
    [[nodiscard]] QList<Row*> rowsAs() const
    {
        QList<Row*> rows;
        for (const auto& [index, row] : m_rows)
            rows.append(static_cast<Row*>(row));
        return rows;
    }
    /// The index of the row with the focus; -1 when none has it.
    [[nodiscard]] int focusedIndex() const;

    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] int lastIndex() const { return static_cast<int>(m_ids.size()) - 1; }
    [[nodiscard]] int indexAt(int y) const;
    [[nodiscard]] int indexOf(const QWidget* row) const;
    [[nodiscard]] QList<int> wantedIndexes() const;
    [[nodiscard]] int heightOf(QWidget& row) const;
    [[nodiscard]] QWidget* takeRow();
    template <typename Leaves>
    void retireRows(Leaves leaves);
    void keepFocusOnItsItem(int index, const QUuid& id);
    void measure();
    void arrange();
    void tellRowsChanged();
    void reveal(int index);
    bool walk(QAbstractButton& from, int key);

    QScrollArea& m_area;
    QWidget* m_viewport; ///< of the area, which may be half destroyed when an event comes
    Layout m_layout;
    QList<QUuid> m_ids;
    QList<int> m_tops{0}; ///< of every item's row and of one behind them
    std::map<int, QWidget*> m_rows;
    std::vector<QWidget*> m_spare;
    QWidget* m_lastFocused = nullptr; ///< the row, whoever has the focus now
    QWidget* m_ruler = nullptr;
    int m_usualHeight = 0;
    QHash<QString, int> m_heights; ///< by shape, at the measured width
    int m_measuredWidth = 0;
    bool m_isFilling = false;
};

} // namespace abissora
