// SPDX-License-Identifier: MIT
#pragma once

#include "ImportTableModel.h"

#include <QStyledItemDelegate>

namespace abissora {

/// Paints what would be imported: the box that chooses a row, texts, the picture of a type, what is wrong with a cell.
class ImportDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    static constexpr int padding = 10; ///< left and right of what stands in a cell
    static constexpr int iconSize = 18;
    static constexpr int iconGap = 8;

    explicit ImportDelegate(const ImportTableModel& model, QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// As wide as the whole cell is, every row as high as two lines.
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] static int rowHeight();
    /// The table itself lets a person choose.
    bool editorEvent(QEvent* /*event*/, QAbstractItemModel* /*model*/, const QStyleOptionViewItem& /*option*/,
                     const QModelIndex& /*index*/) override
    {
        return false;
    }
    /// Where the box of a cell stands.
    [[nodiscard]] static QRect box(const QRect& cell);

private:
    void paintCell(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
    void paintBox(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;

    const ImportTableModel& m_model;
};

} // namespace abissora
