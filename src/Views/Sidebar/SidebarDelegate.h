// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace abissora {

/// Paints the sidebar's rows: titles in caption, entries with their picture and badge, the divider.
class SidebarDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace abissora
