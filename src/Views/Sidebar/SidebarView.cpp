// SPDX-License-Identifier: MIT
#include "SidebarView.h"

#include "ControlLook.h"
#include "Labels.h"
#include "Metrics.h"
#include "Painting.h"
#include "SymbolIcon.h"
#include "Tokens.h"
#include "TypeScale.h"
#include "WordWidths.h"

#include <QHelpEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QToolTip>

namespace abissora {

namespace {

constexpr int minimumSidebarWidth = 220;
constexpr int outerMargin = 6; ///< beside the pill of a row
constexpr int innerMargin = 8;
constexpr int iconGap = 8;
constexpr int mostNameWidth = 320; // at the usual text size
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

QRect pillOf(const QRect& row)
{
    return row.adjusted(outerMargin, 1, -outerMargin, -1);
}

QSize badgeSize(const QString& text)
{
    const QFont number = font(TextStyle::CaptionSemibold);
    const int height = QFontMetrics(number).height() + badgePadding;
    return {std::max(height, qRound(WordWidths::of(number)->advance(text)) + 2 * (badgePadding + 2)), height};
}

QRect badgeRect(const QRect& row, const QString& text)
{
    const QRect pill = pillOf(row);
    QRect rect(QPoint(), badgeSize(text));
    rect.moveCenter(pill.center());
    rect.moveRight(pill.right() - 1);
    return rect;
}

/// Where the name of an entry stands.
QRect textRect(const QRect& row, const QModelIndex& index)
{
    QRect text = pillOf(row).adjusted(innerMargin + metrics::iconSize + iconGap, 0, -innerMargin, 0);
    if (const QVariant badge = index.data(SidebarView::BadgeRole); badge.isValid())
        text.setRight(badgeRect(row, badge.toString()).left() - metrics::spaceXS);
    return text;
}

void paintEntry(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index, const Tokens& tokens)
{
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const QRect pill = pillOf(option.rect);
    if (selected)
        drawPanel(painter, pill, metrics::controlRadius, tokens.accentFill, QColor());
    else if (option.state.testFlag(QStyle::State_MouseOver))
        drawPanel(painter, pill, metrics::controlRadius, mix(tokens.sidebar, tokens.text, 0.06), QColor());
    if (showsFocusRing(option) && selected) // on the accent only its opposite is seen
        drawPanel(painter, pill.adjusted(2, 2, -2, -2), metrics::controlRadius - 2, {}, tokens.onFill,
                  metrics::focusRingWidth);
    else if (showsFocusRing(option))
        drawFocusRing(painter, pill, metrics::controlRadius, option.palette);

    const QRect icon(pill.left() + innerMargin, pill.top() + (pill.height() - metrics::iconSize) / 2, metrics::iconSize,
                     metrics::iconSize);
    index.data(Qt::DecorationRole)
        .value<QIcon>()
        .paint(&painter, icon, Qt::AlignCenter, selected ? QIcon::Selected : QIcon::Normal);
    if (const QVariant badge = index.data(SidebarView::BadgeRole); badge.isValid())
        paintBadge(painter, badgeRect(option.rect, badge.toString()), badge.toString(), tokens);
    const QRect content = textRect(option.rect, index);
    painter.setFont(font(TextStyle::Body));
    painter.setPen(selected ? tokens.onFill : tokens.text);
    painter.drawText(content, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     WordWidths::of(painter.font())->elided(index.data().toString(), content.width()));
}

void paintTitle(QPainter& painter, const QRect& rect, const QString& text, const Tokens& tokens)
{
    painter.setFont(font(TextStyle::CaptionSemibold));
    painter.setPen(tokens.secondaryText);
    painter.drawText(rect.adjusted(outerMargin + innerMargin, 0, -outerMargin, -metrics::spaceXS),
                     Qt::AlignLeft | Qt::AlignBottom, text);
}

} // namespace

bool SidebarDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                                const QModelIndex& index)
{
    if (event->type() != QEvent::ToolTip)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const QString name = index.data().toString();
    const bool isCut =
        index.data(SidebarView::KindRole).toInt() == SidebarRow::Entry &&
        QFontMetrics(font(TextStyle::Body)).horizontalAdvance(name) > textRect(option.rect, index).width();
    QToolTip::showText(event->globalPos(), isCut ? toolTipText(name) : QString(), view);
    return true;
}

void SidebarDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const Tokens& tokens = Tokens::of(option.palette);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    switch (index.data(SidebarView::KindRole).toInt()) {
    case SidebarRow::SectionTitle:
        paintTitle(*painter, option.rect, index.data().toString(), tokens);
        break;
    case SidebarRow::Divider:
        drawHorizontalHairline(*painter, option.rect.left() + outerMargin, option.rect.right() - outerMargin,
                               option.rect.center().y(), tokens.border);
        break;
    default:
        paintEntry(*painter, option, index, tokens);
    }
    painter->restore();
}

QSize SidebarDelegate::sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& index) const
{
    const int entryHeight = QFontMetrics(font(TextStyle::Body)).height() + metrics::spaceM + 2;
    // Room for a badge of two digits, so that one that appears moves nothing.
    const int name = qRound(WordWidths::of(font(TextStyle::Body))->advance(index.data().toString()));
    const int width = std::min(name, withText(mostNameWidth, QFontMetrics(font(TextStyle::Body)))) + metrics::iconSize +
                      2 * outerMargin + innerMargin + iconGap + badgeSize(u"00"_s).width() + metrics::spaceXS + 2;
    switch (index.data(SidebarView::KindRole).toInt()) {
    case SidebarRow::SectionTitle:
        return {width, QFontMetrics(font(TextStyle::CaptionSemibold)).height() + metrics::spaceL + metrics::spaceXS};
    case SidebarRow::Divider:
        return {width, metrics::spaceL + 2};
    default:
        return {width, entryHeight};
    }
}

SidebarView::SidebarView(EquipmentViewModel& equipment, const EquipmentTypeViewModel& types, Console& console,
                         QWidget* parent)
    : QListView(parent)
    , m_equipment(equipment)
    , m_types(types)
    , m_selection(equipment, console)
    , m_update([this] { redraw(); })
{
    setObjectName(u"sidebar"_s);
    setAccessibleName(u"Barra laterale"_s);
    setMinimumWidth(minimumSidebarWidth);
    setFrameShape(NoFrame);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setMouseTracking(true);
    setTabKeyNavigation(false);
    setSelectionLook(*this, SelectionLook::Pill);
    setBackgroundRole(QPalette::AlternateBase);
    viewport()->setBackgroundRole(QPalette::AlternateBase);
    setModel(&m_model);
    setItemDelegate(&m_delegate);
    connect(&m_selection, &SidebarSelection::changed, this, &SidebarView::showSelection);
    connect(&m_selection, &SidebarSelection::changed, this, &SidebarView::selectedSidebarItemChanged);
    connect(&m_selection, &SidebarSelection::tabRequested, this, &SidebarView::tabRequested);
    redraw();
    connect(&equipment, &EquipmentViewModel::changed, &m_update, &CoalescedUpdate::schedule);
    connect(&types, &EquipmentTypeViewModel::changed, &m_update, &CoalescedUpdate::schedule);
}

QSize SidebarView::sizeHint() const
{
    const QSize usual = QListView::sizeHint();
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const int fixedRows = m_delegate.sizeHint(option, indexOf(sidebar::maintenance)).width();
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    return {std::max(minimumWidth(), fixedRows + scrollBar), usual.height()};
}

void SidebarView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QListView::selectionChanged(selected, deselected);
    const QModelIndexList rows = selectionModel()->selectedRows();
    if (!m_silent && !rows.isEmpty())
        m_selection.select(rows.first().data(TagRole).toString());
}

void SidebarView::redraw()
{
    m_selection.followFilter();
    showRows();
    showBadge(m_equipment.overdueEquipment().size());
    showSelection();
}

void SidebarView::showRows()
{
    const QList<SidebarRow> rows = sidebarRows(m_types.filteredTypes());
    if (rows == m_rows)
        return;
    m_rows = rows;
    m_model.clear();
    for (const SidebarRow& row : rows) {
        auto item = std::make_unique<QStandardItem>(row.text);
        item->setData(row.kind, KindRole);
        item->setData(row.tag, TagRole);
        if (row.kind == SidebarRow::Entry)
            item->setIcon(typeIcon(row.appearance.icon, row.appearance.color));
        item->setFlags(row.kind == SidebarRow::Entry
                           ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren
                           : Qt::NoItemFlags);
        m_model.appendRow(item.release());
    }
}

void SidebarView::showBadge(qsizetype count)
{
    QStandardItem* const item = m_model.itemFromIndex(indexOf(sidebar::maintenance));
    item->setData(count > 0 ? QVariant(count) : QVariant(), BadgeRole);
    item->setAccessibleText(count > 0 ? u"%1, %2"_s.arg(item->text()).arg(count) : item->text());
}

QModelIndex SidebarView::indexOf(const QString& tag) const
{
    return m_model.match(m_model.index(0, 0), TagRole, tag, 1, Qt::MatchExactly | Qt::MatchCaseSensitive).value(0);
}

void SidebarView::showSelection()
{
    const QScopedValueRollback silent(m_silent, true);
    const auto& tag = m_selection.tag();
    const QModelIndex index = tag ? indexOf(*tag) : QModelIndex();
    if (!index.isValid())
        clearSelection();
    else if (!selectionModel()->isSelected(index) || currentIndex() != index)
        setCurrentIndex(index);
}

} // namespace abissora
