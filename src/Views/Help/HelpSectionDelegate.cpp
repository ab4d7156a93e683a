// SPDX-License-Identifier: MIT
#include "HelpSectionDelegate.h"

#include "Metrics.h"
#include "Tokens.h"
#include "TypeScale.h"

#include <QApplication>
#include <QPainter>

namespace abissora {

namespace {

constexpr int margin = 10;

} // namespace

void HelpSectionDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem row(option);
    initStyleOption(&row, index);
    const QString title = std::exchange(row.text, QString());
    const QStyle& style = row.widget != nullptr ? *row.widget->style() : *QApplication::style();
    style.drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);

    const Tokens& tokens = Tokens::of(row.palette);
    const QRect place = row.rect.adjusted(margin, 0, -margin, 0);
    painter->save();
    painter->setFont(row.font);
    painter->setPen(row.state.testFlag(QStyle::State_Selected) ? tokens.onFill : tokens.text);
    painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                      row.fontMetrics.elidedText(title, Qt::ElideRight, place.width()));
    painter->restore();
}

QSize HelpSectionDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return {2 * margin + option.fontMetrics.horizontalAdvance(index.data().toString()),
            controlHeight(option.fontMetrics)};
}

} // namespace abissora
