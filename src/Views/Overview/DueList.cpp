// SPDX-License-Identifier: MIT
#include "DueList.h"

#include "Accessibility.h"
#include "Metrics.h"
#include "Painting.h"
#include "Tokens.h"

#include <QAbstractButton>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>

namespace abissora {

namespace {

/// Its rows in their order on the screen, which is not the order in which they were made.
class ListInterface final : public QAccessibleWidget
{
public:
    explicit ListInterface(DueList* list)
        : QAccessibleWidget(list, QAccessible::List)
    {}

    [[nodiscard]] int childCount() const override { return static_cast<int>(list()->rows().size()); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override
    {
        return QAccessible::queryAccessibleInterface(list()->rows().value(index));
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override
    {
        return child != nullptr ? static_cast<int>(list()->rows().indexOf(qobject_cast<DueRow*>(child->object()))) : -1;
    }

private:
    [[nodiscard]] const DueList* list() const { return static_cast<DueList*>(object()); }
};

/// Rows kept ready above and below what is in sight.
constexpr int reserve = 2;

} // namespace

DueList::DueList(QScrollArea& area)
    : m_area(area)
    , m_rowHeight(DueRow::rowHeight())
{
    setAccessibleInterface<ListInterface>(*this);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    area.viewport()->installEventFilter(this);
    connect(area.verticalScrollBar(), &QScrollBar::valueChanged, this, &DueList::arrange);
}

void DueList::setItems(const QList<RegisterSummary::DueItem>& items, Appearance appearance)
{
    const int focused = focusedIndex();
    const QUuid id = focused >= 0 ? m_items.at(focused).equipment.id : QUuid();
    const bool sameHeight = items.size() == m_items.size();
    m_items = items;
    m_appearance = std::move(appearance);
    if (focused >= 0)
        keepFocusOnItsItem(focused, id);
    for (const auto& [index, row] : m_rows) {
        if (index < m_items.size())
            row->setItem(m_items.at(index), m_appearance(m_items.at(index).equipment));
    }
    if (!sameHeight)
        updateGeometry();
    arrange();
    update();
}

void DueList::keepFocusOnItsItem(int index, const QUuid& id)
{
    const auto found =
        std::find_if(m_items.begin(), m_items.end(), [&id](const auto& item) { return item.equipment.id == id; });
    const auto last = static_cast<int>(m_items.size()) - 1;
    const int target = found != m_items.end() ? static_cast<int>(found - m_items.begin()) : std::min(index, last);
    if (target == index || target < 0)
        return;
    DueRow* const moved = m_rows.extract(index).mapped();
    if (const auto there = m_rows.find(target); there != m_rows.end())
        m_rows[index] = std::exchange(there->second, moved);
    else
        m_rows[target] = moved;
}

QList<DueRow*> DueList::rows() const
{
    QList<DueRow*> rows;
    for (const auto& [index, row] : m_rows)
        rows.append(row);
    return rows;
}

QSize DueList::sizeHint() const
{
    return minimumSizeHint();
}

QSize DueList::minimumSizeHint() const
{
    const int width = m_rows.empty() ? 0 : m_rows.begin()->second->minimumSizeHint().width();
    return {width, static_cast<int>(m_items.size()) * pitch() + 1};
}

QRect DueList::partInSight() const
{
    const QWidget* const viewport = m_area.viewport();
    return QRect(mapFrom(viewport, QPoint()), viewport->size()) & rect();
}

int DueList::focusedIndex() const
{
    const auto focused = std::find_if(m_rows.begin(), m_rows.end(),
                                      [](const auto& entry) { return entry.second->focusedPart().has_value(); });
    return focused == m_rows.end() ? -1 : focused->first;
}

QList<int> DueList::wantedIndexes() const
{
    const auto last = static_cast<int>(m_items.size()) - 1;
    const QRect sight = partInSight();
    QList<int> wanted{0, last};
    if (!sight.isEmpty()) {
        for (int i = sight.top() / pitch() - reserve; i <= sight.bottom() / pitch() + reserve; ++i)
            wanted.append(i);
    }
    if (const int focused = focusedIndex(); focused >= 0)
        wanted.append({focused - 1, focused, focused + 1});
    wanted.removeIf([last](int index) { return index < 0 || index > last; });
    std::sort(wanted.begin(), wanted.end());
    wanted.erase(std::unique(wanted.begin(), wanted.end()), wanted.end());
    return wanted;
}

void DueList::arrange()
{
    const QList<int> wanted = wantedIndexes();
    std::erase_if(m_rows, [&](const auto& entry) {
        const bool leaves = !std::binary_search(wanted.begin(), wanted.end(), entry.first);
        if (leaves)
            m_spare.push_back(entry.second);
        return leaves;
    });
    bool anyNew = false;
    for (const int index : wanted) {
        DueRow*& row = m_rows[index];
        if (row == nullptr) {
            anyNew = true;
            if (m_spare.empty()) {
                row = makeRow();
            } else {
                row = m_spare.back();
                m_spare.pop_back();
            }
            row->setItem(m_items.at(index), m_appearance(m_items.at(index).equipment));
        }
        place(index, *row);
    }
    for (DueRow* row : m_spare)
        row->hide();
    if (anyNew)
        chainRows();
}

void DueList::place(int index, DueRow& row) const
{
    row.setGeometry(0, index * pitch() + 1, width(), m_rowHeight);
    row.show();
}

DueRow* DueList::makeRow()
{
    auto* row = new DueRow(this);
    connect(row, &DueRow::chosen, this, [this, row] { Q_EMIT chosen(row->equipment()); });
    connect(row, &DueRow::focused, this, [this, row](bool byKeyboard) {
        if (byKeyboard)
            reveal(indexOf(row));
        arrange();
    });
    connect(row, &DueRow::walked, this, [this, row](int key) { walk(indexOf(row), *row->focusedPart(), key); });
    return row;
}

int DueList::indexOf(const DueRow* row) const
{
    const auto found =
        std::find_if(m_rows.begin(), m_rows.end(), [row](const auto& entry) { return entry.second == row; });
    return found == m_rows.end() ? -1 : found->first;
}

void DueList::chainRows()
{
    QWidget* previous = nullptr;
    for (const auto& [index, row] : m_rows) {
        for (const auto part : {DueRow::AddMaintenance, DueRow::Details}) {
            if (previous != nullptr)
                setTabOrder(previous, row->button(part));
            previous = row->button(part);
        }
    }
}

void DueList::reveal(int index)
{
    const QPoint top = mapTo(m_area.widget(), QPoint(0, index * pitch()));
    m_area.ensureVisible(0, top.y() + pitch(), 0, metrics::spaceS);
    m_area.ensureVisible(0, top.y(), 0, metrics::spaceS);
}

void DueList::walk(int from, DueRow::Part part, int key)
{
    const auto last = static_cast<int>(m_items.size()) - 1;
    const int page = std::max(1, m_area.viewport()->height() / pitch() - 1);
    const int target = key == Qt::Key_Home  ? 0
                       : key == Qt::Key_End ? last
                                            : from + (key == Qt::Key_Up         ? -1
                                                      : key == Qt::Key_Down     ? 1
                                                      : key == Qt::Key_PageUp   ? -page
                                                      : key == Qt::Key_PageDown ? page
                                                                                : 0);
    const int index = std::clamp(target, 0, last);
    reveal(index); // which makes the row
    if (const auto row = m_rows.find(index); row != m_rows.end())
        row->second->button(part)->setFocus(index < from ? Qt::BacktabFocusReason : Qt::TabFocusReason);
}

void DueList::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() != QEvent::ApplicationFontChange && event->type() != QEvent::FontChange)
        return;
    m_rowHeight = DueRow::rowHeight();
    updateGeometry();
    arrange();
}

bool DueList::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_area.viewport() && event->type() == QEvent::Resize)
        arrange();
    return QFrame::eventFilter(watched, event);
}

void DueList::moveEvent(QMoveEvent* event)
{
    QFrame::moveEvent(event);
    arrange();
}

void DueList::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    arrange();
}

void DueList::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    const Tokens& tokens = Tokens::of(palette());
    // Only what is exposed, and a little more: the whole may be hundreds of thousands of pixels high.
    const QRect exposed = event->rect();
    constexpr int around = 4 * metrics::cardRadius;
    drawPanel(painter, rect() & exposed.adjusted(-width(), -around, width(), around), metrics::cardRadius,
              tokens.surface, tokens.border);
    const int first = std::max(1, exposed.top() / pitch());
    for (int i = first; i < m_items.size() && i * pitch() <= exposed.bottom(); ++i)
        drawHorizontalHairline(painter, 1, width() - 1, i * pitch(), tokens.divider);
}

} // namespace abissora
