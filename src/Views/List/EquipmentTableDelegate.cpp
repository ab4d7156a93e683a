// SPDX-License-Identifier: MIT
#include "EquipmentTableDelegate.h"

#include "Literals.h"
#include "Metrics.h"
#include "Painting.h"
#include "SymbolIcon.h"
#include "Tokens.h"
#include "TypeScale.h"
#include "WordWidths.h"

#include <QApplication>
#include <QPainter>

namespace abissora {

namespace {

constexpr int linesOfMake = 2; ///< and of a model

struct Line
{
    QString text;
    QFont font;
    QColor color;
    int most = 1; ///< lines of its own
};

/// The texts one below the other, in the middle of the cell's height.
void drawLines(QPainter& painter, const QRect& rect, std::initializer_list<Line> texts)
{
    QList<Line> lines;
    int height = 0;
    for (const Line& text : texts) {
        const auto widths = WordWidths::of(text.font); // most texts stand there again and again
        for (const QString& line : cellLines(text.text, *widths, rect.width(), text.most)) {
            lines.append({line, text.font, text.color});
            height += QFontMetrics(text.font).height();
        }
    }
    int top = rect.top() + (rect.height() - height) / 2;
    for (const Line& line : std::as_const(lines)) {
        const int lineHeight = QFontMetrics(line.font).height();
        painter.setFont(line.font);
        painter.setPen(line.color);
        painter.drawText(QRect(rect.left(), top, rect.width(), lineHeight),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, line.text);
        top += lineHeight;
    }
}

void paintName(QPainter& painter, const QRect& cell, const EquipmentRow& row, const Tokens& tokens, int mostLines)
{
    constexpr int side = TableColumns::typeIconSize;
    const QRect icon(cell.left(), cell.top() + (cell.height() - side) / 2, side, side);
    typeIcon(row.appearance.icon, row.appearance.color).paint(&painter, icon);
    drawLines(painter, cell.adjusted(side + TableColumns::typeIconGap, 0, 0, 0),
              {{row.name, font(TextStyle::BodyMedium), tokens.text, mostLines},
               {row.typeName, font(TextStyle::Caption), tokens.secondaryText}});
}

void paintNextService(QPainter& painter, const QRect& cell, const EquipmentRow& row, const Tokens& tokens, bool whole)
{
    QFont due = font(TextStyle::Caption);
    due.setBold(true);
    drawLines(painter, cell,
              {{whole ? row.nextServiceDate : row.nextServiceDateAbbreviated, font(TextStyle::Body), tokens.text},
               row.isDue ? Line{row.remaining, due, tokens.danger}
                         : Line{row.remaining, font(TextStyle::Caption), tokens.secondaryText}});
}

void paintState(QPainter& painter, const QRect& cell, const EquipmentRow& row, const Tokens& tokens)
{
    constexpr int side = TableColumns::dotSize;
    const QRectF dot(cell.left(), cell.top() + (cell.height() - side) / 2.0, side, side);
    painter.setPen(Qt::NoPen);
    painter.setBrush(tokens.named(row.isActive ? NamedColor::green : NamedColor::gray));
    painter.drawEllipse(dot);
    drawLines(painter, cell.adjusted(side + TableColumns::dotGap, 0, 0, 0),
              {{row.state, font(TextStyle::Caption), tokens.text}});
}

void paintActions(QPainter& painter, const QRect& cell, bool hovered, bool focused, const QPalette& palette)
{
    const Tokens& tokens = Tokens::of(palette);
    const QRect button = EquipmentTableDelegate::actionButton(cell);
    if (hovered)
        drawPanel(painter, button, metrics::controlRadius, mix(tokens.surface, tokens.text, 0.08), QColor());
    if (focused)
        drawFocusRing(painter, button, metrics::controlRadius, palette);
    constexpr int side = TableColumns::actionIconSize;
    const QRect icon(button.center() - QPoint(side / 2 - 1, side / 2 - 1), QSize(side, side));
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
    const QRect cell =
        option.rect.adjusted(TableColumns::leftPadding(index.column()), 0, -TableColumns::rightPadding, 0);
    const auto drawText = [&](const QString& text) {
        drawLines(*painter, cell, {{text, font(TextStyle::Body), tokens.text, linesOfMake}});
    };
    const EquipmentRow row = m_model.row(index.row());
    const bool focused = showsFocusRing(option);
    // The table rings whole rows, the button its own cell.
    if (focused && index.column() != EquipmentTableModel::NameColumn &&
        index.column() != EquipmentTableModel::ActionsColumn)
        drawFocusRing(*painter, option.rect.adjusted(1, 1, -1, -1), metrics::spaceXS, option.palette);
    switch (index.column()) {
    case EquipmentTableModel::NameColumn:
        paintName(*painter, cell, row, tokens, m_layout.nameLines);
        break;
    case EquipmentTableModel::BrandColumn:
        drawText(row.brand);
        break;
    case EquipmentTableModel::ModelColumn:
        drawText(row.model);
        break;
    case EquipmentTableModel::NextServiceColumn:
        paintNextService(*painter, cell, row, tokens, m_layout.hasWholeDates);
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
    constexpr int side = TableColumns::actionIconSize + 2 * metrics::spaceXS;
    QRect button(0, 0, side, side);
    button.moveCenter(cell.center());
    return button;
}

void EquipmentTableDelegate::setLayout(const TableColumns::Layout& layout)
{
    m_layout = layout;
}

void EquipmentTableDelegate::setHover(int row, bool onActionButton)
{
    m_hoveredRow = row;
    m_actionButtonHovered = onActionButton;
}

int EquipmentTableDelegate::rowHeight() const
{
    const int name = QFontMetrics(font(TextStyle::BodyMedium)).height();
    const int air = m_layout.nameLines > 1 ? 2 * metrics::spaceS : 2 * metrics::spaceM;
    return m_layout.nameLines * name + QFontMetrics(font(TextStyle::Caption)).height() + air;
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
