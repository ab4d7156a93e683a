// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace abissora {

/// Paints a row of the index: the title with room around it.
class HelpSectionDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace abissora
