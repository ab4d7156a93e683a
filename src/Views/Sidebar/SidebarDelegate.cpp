// SPDX-License-Identifier: MIT
#include "SidebarDelegate.h"

#include "Literals.h"
#include "Metrics.h"
#include "Painting.h"
#include "SidebarModel.h"
#include "Tokens.h"
#include "TypeScale.h"

#include <QIcon>
#include <QPainter>

namespace abissora {

namespace {

constexpr int margin = 10;
constexpr int badgePadding = 4;

void paintBadge(QPainter& painter, const QRect& rect, const QString& text, const Tokens& tokens)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(tokens.dangerFill);
    painter.drawRoundedRect(rect, rect.height() / 2.0, rect.height() / 2.0);
    painter.setPen(tokens.onFill);
    painter.setFont(font(TextStyle::CaptionSemibold));
    painter.drawText(rect, Qt::AlignCenter, text);
}

QSize badgeSize(const QString& text)
{
    const QFontMetrics metrics(font(TextStyle::CaptionSemibold));
    const int height = metrics.height() + badgePadding;
    return {std::max(height, metrics.horizontalAdvance(text) + 2 * (badgePadding + 2)), height};
}

void paintEntry(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index, const Tokens& tokens)
{
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const QRect pill = option.rect.adjusted(margin, 1, -margin, -1);
    if (selected)
        drawPanel(painter, pill, metrics::controlRadius, tokens.accentFill, QColor());
    else if (option.state.testFlag(QStyle::State_MouseOver))
        drawPanel(painter, pill, metrics::controlRadius, mix(tokens.sidebar, tokens.text, 0.06), QColor());
    if (showsFocusRing(option))
        drawFocusRing(painter, pill, metrics::controlRadius, option.palette);

    QRect content = pill.adjusted(margin, 0, -margin, 0);
    const QRect icon(content.left(), content.top() + (content.height() - metrics::iconSize) / 2, metrics::iconSize,
                     metrics::iconSize);
    index.data(Qt::DecorationRole)
        .value<QIcon>()
        .paint(&painter, icon, Qt::AlignCenter, selected ? QIcon::Selected : QIcon::Normal);
    content.setLeft(icon.right() + 1 + margin);

    if (const QVariant badge = index.data(SidebarModel::BadgeRole); badge.isValid()) {
        const QString text = badge.toString();
        QRect rect(QPoint(), badgeSize(text));
        rect.moveCenter(content.center());
        rect.moveRight(pill.right() - 1);
        paintBadge(painter, rect, text, tokens);
        content.setRight(rect.left() - metrics::spaceXS);
    }
    painter.setFont(font(TextStyle::Body));
    painter.setPen(selected ? tokens.onFill : tokens.text);
    painter.drawText(content, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(index.data().toString(), Qt::ElideRight, content.width()));
}

void paintTitle(QPainter& painter, const QRect& rect, const QString& text, const Tokens& tokens)
{
    painter.setFont(font(TextStyle::CaptionSemibold));
    painter.setPen(tokens.secondaryText);
    painter.drawText(rect.adjusted(2 * margin, 0, -margin, -metrics::spaceXS), Qt::AlignLeft | Qt::AlignBottom, text);
}

} // namespace

void SidebarDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const Tokens& tokens = Tokens::of(option.palette);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    switch (index.data(SidebarModel::KindRole).toInt()) {
    case SidebarModel::SectionTitle:
        paintTitle(*painter, option.rect, index.data().toString(), tokens);
        break;
    case SidebarModel::Divider:
        drawHorizontalHairline(*painter, option.rect.left() + margin, option.rect.right() - margin,
                               option.rect.center().y(), tokens.border);
        break;
    default:
        paintEntry(*painter, option, index, tokens);
    }
    painter->restore();
}

QSize SidebarDelegate::sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& index) const
{
    const int entryHeight = QFontMetrics(font(TextStyle::Body)).height() + metrics::spaceL;
    // Room for a badge of two digits, so that one that appears moves nothing.
    const int width = QFontMetrics(font(TextStyle::Body)).horizontalAdvance(index.data().toString()) +
                      metrics::iconSize + 5 * margin + badgeSize(u"00"_s).width() + metrics::spaceXS;
    switch (index.data(SidebarModel::KindRole).toInt()) {
    case SidebarModel::SectionTitle:
        return {width, QFontMetrics(font(TextStyle::CaptionSemibold)).height() + metrics::spaceL + metrics::spaceXS};
    case SidebarModel::Divider:
        return {width, metrics::spaceL + 2};
    default:
        return {width, entryHeight};
    }
}

} // namespace abissora
