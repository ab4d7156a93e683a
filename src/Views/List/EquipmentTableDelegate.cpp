// SPDX-License-Identifier: MIT
#include "EquipmentTableDelegate.h"

#include "Literals.h"
#include "Metrics.h"
#include "Painting.h"
#include "SymbolIcon.h"
#include "Tokens.h"
#include "TypeScale.h"

#include <QApplication>
#include <QPainter>

namespace abissora {

namespace {

constexpr int typeIconSize = 20;
constexpr int actionIconSize = 20;
constexpr int dotSize = 8;

struct Line
{
    QString text;
    QFont font;
    QColor color;
};

void drawLine(QPainter& painter, const QRectF& rect, const Line& line)
{
    const QFontMetrics metrics(line.font);
    painter.setFont(line.font);
    painter.setPen(line.color);
    painter.drawText(
        rect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        metrics.elidedText(QString(line.text).replace(u'\n', u' '), Qt::ElideRight, static_cast<int>(rect.width())));
}

void drawTwoLines(QPainter& painter, const QRect& rect, const Line& upper, const Line& lower)
{
    const int upperHeight = QFontMetrics(upper.font).height();
    const int lowerHeight = QFontMetrics(lower.font).height();
    const int top = rect.top() + (rect.height() - upperHeight - lowerHeight) / 2;
    drawLine(painter, QRect(rect.left(), top, rect.width(), upperHeight), upper);
    drawLine(painter, QRect(rect.left(), top + upperHeight, rect.width(), lowerHeight), lower);
}

void paintName(QPainter& painter, const QRect& cell, const EquipmentRow& row, const Tokens& tokens)
{
    const QRect icon(cell.left(), cell.top() + (cell.height() - typeIconSize) / 2, typeIconSize, typeIconSize);
    typeIcon(row.appearance.icon, row.appearance.color).paint(&painter, icon);
    drawTwoLines(painter, cell.adjusted(typeIconSize + metrics::spaceS, 0, 0, 0),
                 {row.name, font(TextStyle::BodyMedium), tokens.text},
                 {row.typeName, font(TextStyle::Caption), tokens.secondaryText});
}

void paintNextService(QPainter& painter, const QRect& cell, const EquipmentRow& row, const Tokens& tokens)
{
    QFont due = font(TextStyle::Caption);
    due.setBold(true);
    const QFont body = font(TextStyle::Body);
    const bool fits = QFontMetrics(body).horizontalAdvance(row.nextServiceDate) <= cell.width();
    drawTwoLines(painter, cell, {fits ? row.nextServiceDate : row.nextServiceDateAbbreviated, body, tokens.text},
                 row.isDue ? Line{row.remaining, due, tokens.danger}
                           : Line{row.remaining, font(TextStyle::Caption), tokens.secondaryText});
}

void paintState(QPainter& painter, const QRect& cell, const EquipmentRow& row, const Tokens& tokens)
{
    const QRectF dot(cell.left(), cell.top() + (cell.height() - dotSize) / 2.0, dotSize, dotSize);
    painter.setPen(Qt::NoPen);
    painter.setBrush(tokens.named(row.isActive ? NamedColor::green : NamedColor::gray));
    painter.drawEllipse(dot);
    drawLine(painter, cell.adjusted(dotSize + metrics::spaceS, 0, 0, 0),
             {row.state, font(TextStyle::Caption), tokens.text});
}

void paintActions(QPainter& painter, const QRect& cell, bool hovered, bool focused, const QPalette& palette)
{
    const Tokens& tokens = Tokens::of(palette);
    const QRect button = EquipmentTableDelegate::actionButton(cell);
    if (hovered)
        drawPanel(painter, button, metrics::controlRadius, mix(tokens.surface, tokens.text, 0.08), QColor());
    if (focused)
        drawFocusRing(painter, button, metrics::controlRadius, palette);
    const QRect icon(button.center() - QPoint(actionIconSize / 2 - 1, actionIconSize / 2 - 1),
                     QSize(actionIconSize, actionIconSize));
    symbolIcon(u"ellipsis.circle.fill"_s, NamedColor::secondary).paint(&painter, icon);
}

} // namespace

EquipmentTableDelegate::EquipmentTableDelegate(const EquipmentTableModel& model, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_model(model)
{}

void EquipmentTableDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                   const QModelIndex& index) const
{
    painter->save();
    // Antialiased, the fills of neighbouring cells would show seams at fractional scales.
    paintBackground(*painter, option, index);
    painter->setRenderHint(QPainter::Antialiasing);
    const Tokens& tokens = Tokens::of(option.palette);
    const QRect cell = option.rect.adjusted(metrics::spaceS, 0, -metrics::spaceXS, 0);
    const EquipmentRow row = m_model.row(index.row());
    const bool focused = showsFocusRing(option);
    // The table rings whole rows, the button its own cell.
    if (focused && index.column() != EquipmentTableModel::NameColumn &&
        index.column() != EquipmentTableModel::ActionsColumn)
        drawFocusRing(*painter, option.rect.adjusted(1, 1, -1, -1), metrics::spaceXS, option.palette);
    switch (index.column()) {
    case EquipmentTableModel::NameColumn:
        paintName(*painter, cell, row, tokens);
        break;
    case EquipmentTableModel::BrandColumn:
        drawLine(*painter, cell, {row.brand, font(TextStyle::Body), tokens.text});
        break;
    case EquipmentTableModel::ModelColumn:
        drawLine(*painter, cell, {row.model, font(TextStyle::Body), tokens.text});
        break;
    case EquipmentTableModel::NextServiceColumn:
        paintNextService(*painter, cell, row, tokens);
        break;
    case EquipmentTableModel::StateColumn:
        paintState(*painter, cell, row, tokens);
        break;
    default:
        paintActions(*painter, option.rect, m_actionButtonHovered && index.row() == m_hoveredRow, focused,
                     option.palette);
    }
    painter->restore();
}

QSize EquipmentTableDelegate::sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& /*index*/) const
{
    return {0, rowHeight()};
}

QRect EquipmentTableDelegate::actionButton(const QRect& cell)
{
    constexpr int side = actionIconSize + 2 * metrics::spaceXS;
    QRect button(0, 0, side, side);
    button.moveCenter(cell.center());
    return button;
}

void EquipmentTableDelegate::setHover(int row, bool onActionButton)
{
    m_hoveredRow = row;
    m_actionButtonHovered = onActionButton;
}

int EquipmentTableDelegate::rowHeight() const
{
    return QFontMetrics(font(TextStyle::BodyMedium)).height() + QFontMetrics(font(TextStyle::Caption)).height() +
           2 * metrics::spaceM;
}

void EquipmentTableDelegate::paintBackground(QPainter& painter, const QStyleOptionViewItem& option,
                                             const QModelIndex& index) const
{
    const Tokens& tokens = Tokens::of(option.palette);
    if (option.state.testFlag(QStyle::State_Selected))
        painter.fillRect(option.rect, tokens.selection);
    else if (index.row() == m_hoveredRow)
        painter.fillRect(option.rect, mix(tokens.surface, tokens.text, 0.03));
    drawHorizontalHairline(painter, option.rect.left(), option.rect.right() + 1, option.rect.bottom(), tokens.divider);
}

} // namespace abissora
