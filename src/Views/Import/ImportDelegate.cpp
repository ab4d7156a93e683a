// SPDX-License-Identifier: MIT
#include "ImportDelegate.h"

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

constexpr int problemIconSize = 14;
constexpr int problemIconGap = 6;
const QString nothing = u"—"_s;

QString oneLine(const QString& text)
{
    return text.simplified();
}

QFont textFont(const ImportTableModel::Cell& cell)
{
    if (!cell.problem.isEmpty())
        return font(TextStyle::Callout);
    return font(cell.isName ? TextStyle::BodyMedium : TextStyle::Body);
}

void drawLine(QPainter& painter, const QRect& rect, const QString& text, const QFont& font, const QColor& color)
{
    painter.setFont(font);
    painter.setPen(color);
    const QString line = QFontMetrics(font).elidedText(oneLine(text), Qt::ElideRight, rect.width());
    painter.drawText(rect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, line);
}

QFont noteFont()
{
    return font(TextStyle::CaptionSemibold);
}

} // namespace

ImportDelegate::ImportDelegate(const ImportTableModel& model, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_model(model)
{}

void ImportDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    painter->save();
    if (index.column() == ImportTableModel::ChoiceColumn)
        paintBox(*painter, option, index);
    else
        paintCell(*painter, option, index);
    const Tokens& tokens = Tokens::of(option.palette);
    drawHorizontalHairline(*painter, option.rect.left(), option.rect.right() + 1, option.rect.bottom(), tokens.divider);
    // The table rings whole rows.
    if (showsFocusRing(option) && index.column() != ImportTableModel::ChoiceColumn)
        drawFocusRing(*painter, option.rect.adjusted(1, 1, -1, -1), metrics::spaceXS, option.palette);
    painter->restore();
}

void ImportDelegate::paintBox(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const Tokens& tokens = Tokens::of(option.palette);
    if (option.state.testFlag(QStyle::State_Selected))
        painter.fillRect(option.rect, tokens.selection);
    else if (m_model.cell(index.siblingAtColumn(1)).isPresent)
        painter.fillRect(option.rect, tokens.window);
    QStyleOptionButton button;
    button.palette = option.palette;
    button.rect = box(option.rect);
    const bool isChecked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    button.state = isChecked ? QStyle::State_On : QStyle::State_Off;
    button.state.setFlag(QStyle::State_Enabled, index.flags().testFlag(Qt::ItemIsEnabled));
    painter.setRenderHint(QPainter::Antialiasing);
    QApplication::style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &button, &painter);
}

void ImportDelegate::paintCell(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const Tokens& tokens = Tokens::of(option.palette);
    const ImportTableModel::Cell cell = m_model.cell(index);
    if (option.state.testFlag(QStyle::State_Selected))
        painter.fillRect(option.rect, tokens.selection);
    else if (!cell.problem.isEmpty())
        painter.fillRect(option.rect, tokens.dangerTint);
    else if (cell.isPresent)
        painter.fillRect(option.rect, tokens.window);
    painter.setRenderHint(QPainter::Antialiasing);
    QRect room = option.rect.adjusted(padding, 0, -padding, 0);
    const auto drawIcon = [&](const QIcon& icon, int side, int gap) {
        icon.paint(&painter, QRect(room.left(), room.center().y() - side / 2 + 1, side, side));
        room.setLeft(room.left() + side + gap);
    };
    if (!cell.problem.isEmpty()) {
        drawIcon(symbolIcon(u"exclamationmark.circle"_s, NamedColor::red), problemIconSize, problemIconGap);
        drawLine(painter, room, cell.problem, textFont(cell), tokens.danger);
        return;
    }
    if (cell.appearance)
        drawIcon(typeIcon(cell.appearance->icon, cell.appearance->color), iconSize, iconGap);
    const QColor ink = cell.isPresent || cell.text.isEmpty() ? tokens.secondaryText : tokens.text;
    if (!cell.note.isEmpty()) {
        const int first = QFontMetrics(textFont(cell)).height();
        const int second = QFontMetrics(noteFont()).height();
        room = QRect(room.left(), room.center().y() - (first + second) / 2, room.width(), first);
        drawLine(painter, room.translated(0, first).adjusted(0, 0, 0, second - first), cell.note, noteFont(),
                 tokens.warning);
    }
    drawLine(painter, room, cell.text.isEmpty() ? nothing : cell.text, textFont(cell), ink);
}

QSize ImportDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (index.column() == ImportTableModel::ChoiceColumn)
        return {box(QRect(0, 0, 1, rowHeight())).right() + padding, rowHeight()};
    const ImportTableModel::Cell cell = m_model.cell(index);
    const QString text = oneLine(cell.problem.isEmpty() ? cell.text : cell.problem);
    int width = QFontMetrics(textFont(cell)).horizontalAdvance(text);
    if (!cell.problem.isEmpty())
        width += problemIconSize + problemIconGap;
    else if (cell.appearance)
        width += iconSize + iconGap;
    width = std::max(width, QFontMetrics(noteFont()).horizontalAdvance(cell.note));
    Q_UNUSED(option)
    return {width + 2 * padding + 2, rowHeight()};
}

int ImportDelegate::rowHeight()
{
    return QFontMetrics(font(TextStyle::BodyMedium)).height() + QFontMetrics(noteFont()).height() + metrics::spaceL;
}

QRect ImportDelegate::box(const QRect& cell)
{
    const int side = QApplication::style()->pixelMetric(QStyle::PM_IndicatorWidth);
    return {cell.left() + padding, cell.center().y() - side / 2 + 1, side, side};
}

} // namespace abissora
