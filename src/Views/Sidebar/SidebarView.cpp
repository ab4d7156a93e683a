// SPDX-License-Identifier: MIT
#include "SidebarView.h"

#include "ControlLook.h"
#include "Metrics.h"
#include "Painting.h"
#include "SymbolIcon.h"
#include "Tokens.h"
#include "TypeScale.h"

#include <QPainter>
#include <QScopedValueRollback>

namespace abissora {

namespace {

constexpr int minimumSidebarWidth = 220;
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

SidebarModel::SidebarModel(QObject* parent)
    : QAbstractListModel(parent)
    , m_rows(sidebarRows({}))
{}

void SidebarModel::setTypes(const QList<EquipmentTypeModel>& types)
{
    QList<SidebarRow> rows = sidebarRows(types);
    if (rows == m_rows)
        return;
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

void SidebarModel::setBadge(qsizetype count)
{
    if (m_badge == count)
        return;
    m_badge = count;
    const QModelIndex changed = index(rowOf(sidebar::maintenance));
    Q_EMIT dataChanged(changed, changed);
}

int SidebarModel::rowOf(const QString& tag) const
{
    const auto found = std::ranges::find_if(
        m_rows, [&tag](const SidebarRow& row) { return row.kind == SidebarRow::Entry && row.tag == tag; });
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

int SidebarModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant SidebarModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const SidebarRow& row = m_rows.at(index.row());
    const bool badged = row.tag == sidebar::maintenance && m_badge > 0;
    switch (role) {
    case Qt::DisplayRole:
        return row.text;
    case Qt::DecorationRole:
        return row.kind == SidebarRow::Entry ? QVariant::fromValue(typeIcon(row.appearance.icon, row.appearance.color))
                                             : QVariant();
    case Qt::AccessibleTextRole:
        return badged ? u"%1, %2"_s.arg(row.text).arg(m_badge) : row.text;
    case TagRole:
        return row.tag;
    case KindRole:
        return row.kind;
    case BadgeRole:
        return badged ? QVariant::fromValue(m_badge) : QVariant();
    default:
        return {};
    }
}

Qt::ItemFlags SidebarModel::flags(const QModelIndex& index) const
{
    const bool entry = index.isValid() && m_rows.at(index.row()).kind == SidebarRow::Entry;
    return entry ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren : Qt::NoItemFlags;
}

void SidebarDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const Tokens& tokens = Tokens::of(option.palette);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    switch (index.data(SidebarModel::KindRole).toInt()) {
    case SidebarRow::SectionTitle:
        paintTitle(*painter, option.rect, index.data().toString(), tokens);
        break;
    case SidebarRow::Divider:
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
    m_model.setTypes(types.filteredTypes());
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
    const int fixedRows = m_delegate.sizeHint(option, m_model.index(m_model.rowOf(sidebar::maintenance))).width();
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    return {std::max(minimumWidth(), fixedRows + scrollBar), usual.height()};
}

void SidebarView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QListView::selectionChanged(selected, deselected);
    const QModelIndexList rows = selectionModel()->selectedRows();
    if (!m_silent && !rows.isEmpty())
        m_selection.select(rows.first().data(SidebarModel::TagRole).toString());
}

void SidebarView::redraw()
{
    m_selection.followFilter();
    m_model.setTypes(m_types.filteredTypes());
    m_model.setBadge(m_equipment.overdueEquipment().size());
    showSelection();
}

void SidebarView::showSelection()
{
    const QScopedValueRollback silent(m_silent, true);
    const auto& tag = m_selection.tag();
    const int row = tag ? m_model.rowOf(*tag) : -1;
    if (row < 0)
        clearSelection();
    else if (!selectionModel()->isRowSelected(row) || currentIndex().row() != row)
        setCurrentIndex(m_model.index(row));
}

} // namespace abissora
