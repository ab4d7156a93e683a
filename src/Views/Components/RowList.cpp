// SPDX-License-Identifier: MIT
#include "RowList.h"

#include "Accessibility.h"
#include "Metrics.h"
#include "Painting.h"
#include "Tokens.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QLayout>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>

namespace abissora {

namespace {

/// Its rows in their order on the screen, which is not the order in which they were made.
class ListInterface final : public QAccessibleWidget
{
public:
    explicit ListInterface(RowList* list)
        : QAccessibleWidget(list, QAccessible::List)
    {}

    [[nodiscard]] int childCount() const override { return static_cast<int>(rows().size()); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override
    {
        return QAccessible::queryAccessibleInterface(rows().value(index));
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override
    {
        return child != nullptr ? static_cast<int>(rows().indexOf(child->object())) : -1;
    }

private:
    [[nodiscard]] QList<QWidget*> rows() const { return static_cast<RowList*>(object())->rows(); }
};

QList<QAbstractButton*> buttonsOf(const QWidget& row)
{
    return row.findChildren<QAbstractButton*>();
}

} // namespace

RowList::RowList(QScrollArea& area, const Layout& layout)
    : m_area(area)
    , m_viewport(area.viewport())
    , m_layout(layout)
{
    setAccessibleInterface<ListInterface>(*this);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_viewport->installEventFilter(this);
    connect(area.verticalScrollBar(), &QScrollBar::valueChanged, this, &RowList::arrange);
}

QSize RowList::minimumSizeHint() const
{
    return {m_ruler != nullptr ? m_ruler->minimumSizeHint().width() : 0, 0};
}

void RowList::showItems(const QList<QUuid>& ids)
{
    const int focused = focusedIndex();
    const QUuid focusedId = m_ids.value(focused);
    m_ids = ids;
    if (focused >= 0)
        keepFocusOnItsItem(focused, focusedId);
    retireRows([this](int index) { return index > lastIndex(); });
    tellRowsChanged();
    {
        const QScopedValueRollback filling(m_isFilling, true);
        for (const auto& [index, row] : m_rows)
            fillRow(*row, index);
    }
    measure();
}

void RowList::keepFocusOnItsItem(int index, const QUuid& id)
{
    const auto found = static_cast<int>(m_ids.indexOf(id));
    const int target = found >= 0 ? found : std::min(index, lastIndex());
    if (target == index || target < 0)
        return;
    std::swap(m_rows[index], m_rows[target]);
    if (m_rows.at(index) == nullptr)
        m_rows.erase(index);
}

int RowList::focusedIndex() const
{
    const QWidget* const focused = window()->focusWidget();
    const auto found =
        std::ranges::find_if(m_rows, [=](const auto& entry) { return entry.second->isAncestorOf(focused); });
    return found == m_rows.end() ? -1 : found->first;
}

int RowList::indexOf(const QWidget* row) const
{
    const auto found = std::ranges::find_if(m_rows, [row](const auto& entry) { return entry.second == row; });
    return found == m_rows.end() ? -1 : found->first;
}

int RowList::indexAt(int y) const
{
    const auto below = std::upper_bound(m_tops.begin() + 1, m_tops.end(), y);
    return static_cast<int>(below - m_tops.begin()) - 1;
}

QList<int> RowList::wantedIndexes() const
{
    QList<int> wanted{0, lastIndex()};
    const QRect sight = QRect(mapFrom(m_viewport, QPoint()), m_viewport->size()) & rect();
    if (!sight.isEmpty()) {
        for (int i = indexAt(sight.top()) - m_layout.reserve; i <= indexAt(sight.bottom()) + m_layout.reserve; ++i)
            wanted.append(i);
    }
    for (const int kept : {focusedIndex(), indexOf(m_lastFocused)}) {
        if (kept >= 0)
            wanted.append({kept - 1, kept, kept + 1});
    }
    wanted.removeIf([this](int index) { return index < 0 || index > lastIndex(); });
    std::ranges::sort(wanted);
    wanted.resize(std::unique(wanted.begin(), wanted.end()) - wanted.begin());
    return wanted;
}

int RowList::heightOf(QWidget& row) const
{
    row.layout()->activate(); // what is hidden keeps its old measures otherwise
    return row.hasHeightForWidth() ? row.heightForWidth(width()) : row.sizeHint().height();
}

void RowList::measure()
{
    if (m_ruler == nullptr && !m_ids.isEmpty()) {
        m_ruler = makeRow();
        m_ruler->hide();
        m_usualHeight = heightOf(*m_ruler);
        m_measuredWidth = -1;
    }
    if (std::exchange(m_measuredWidth, width()) != width())
        m_heights = {{QString(), m_usualHeight}};
    m_tops.resize(m_ids.size() + 1);
    m_tops.first() = m_layout.border;
    for (qsizetype i = 0; i < m_ids.size(); ++i) {
        const QString shape = shapeOf(*m_ruler, i);
        if (!m_heights.contains(shape)) {
            fillRow(*m_ruler, i);
            m_heights.insert(shape, heightOf(*m_ruler));
        }
        m_tops[i + 1] = m_tops.at(i) + m_heights.value(shape) + m_layout.gap;
    }
    setFixedHeight(std::max(0, m_tops.last() - m_layout.gap + m_layout.border));
    arrange();
    update();
}

void RowList::arrange()
{
    if (m_isFilling)
        return; // a row moved the focus to another of its buttons
    const QList<int> wanted = wantedIndexes();
    retireRows([&wanted](int index) { return !std::ranges::binary_search(wanted, index); });
    bool anyNew = false;
    for (const int index : wanted) {
        QWidget*& row = m_rows[index];
        if (row == nullptr) {
            anyNew = true;
            row = takeRow();
            fillRow(*row, index);
        }
        row->setGeometry(0, m_tops.at(index), width(), m_tops.at(index + 1) - m_layout.gap - m_tops.at(index));
        row->show();
    }
    for (QWidget* row : m_spare)
        row->hide();
    if (anyNew)
        tellRowsChanged();
}

QWidget* RowList::takeRow()
{
    if (m_spare.empty()) {
        m_spare.push_back(makeRow());
        setAccessibleRole(*m_spare.back(), QAccessible::ListItem);
        for (QAbstractButton* button : buttonsOf(*m_spare.back()))
            button->installEventFilter(this);
    }
    QWidget* const row = m_spare.back();
    m_spare.pop_back();
    return row;
}

template <typename Leaves>
void RowList::retireRows(Leaves leaves)
{
    std::erase_if(m_rows, [&](const auto& entry) {
        const bool retires = leaves(entry.first);
        if (retires)
            m_spare.push_back(entry.second);
        return retires;
    });
}

void RowList::tellRowsChanged()
{
    QWidget* previous = this;
    setFocusPolicy(Qt::TabFocus); // nothing is put behind what takes no focus
    for (const auto& [index, row] : m_rows) {
        for (QAbstractButton* button : buttonsOf(*row)) {
            setTabOrder(previous, button);
            previous = button;
        }
    }
    setFocusPolicy(Qt::NoFocus);
    rowsChanged();
}

void RowList::reveal(int index)
{
    const int top = mapTo(m_area.widget(), QPoint(0, m_tops.at(index) - m_layout.gap)).y();
    m_area.ensureVisible(0, top + m_tops.at(index + 1) - m_tops.at(index), 0, metrics::spaceS);
    m_area.ensureVisible(0, top, 0, metrics::spaceS);
}

bool RowList::walk(QAbstractButton& from, int key)
{
    const int index = focusedIndex();
    const int page = std::max(1, m_viewport->height() / (m_usualHeight + m_layout.gap) - 1);
    const QHash<int, int> targets{
        {Qt::Key_Up, index - 1},          {Qt::Key_Down, index + 1}, {Qt::Key_PageUp, index - page},
        {Qt::Key_PageDown, index + page}, {Qt::Key_Home, 0},         {Qt::Key_End, lastIndex()}};
    if (index < 0 || !targets.contains(key))
        return false;
    const int target = std::clamp(targets[key], 0, lastIndex());
    const qsizetype column = buttonsOf(*m_rows.at(index)).indexOf(&from);
    reveal(target); // which makes the row
    if (const auto row = m_rows.find(target); row != m_rows.end()) {
        const Qt::FocusReason reason = target < index ? Qt::BacktabFocusReason : Qt::TabFocusReason;
        buttonsOf(*row->second).at(column)->setFocus(reason);
    }
    return true;
}

bool RowList::event(QEvent* event)
{
    const bool handled = QFrame::event(event);
    if (event->type() == QEvent::ApplicationFontChange || event->type() == QEvent::FontChange) {
        // Later, when everything within has its new font.
        const auto measureAnew = [this] {
            delete std::exchange(m_ruler, nullptr);
            measure();
        };
        QMetaObject::invokeMethod(this, measureAnew, Qt::QueuedConnection);
    } else if (event->type() == QEvent::Resize && m_measuredWidth != width()) {
        measure();
    } else if (event->type() == QEvent::Resize || event->type() == QEvent::Move) {
        arrange();
    }
    return handled;
}

bool RowList::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_viewport) {
        if (event->type() == QEvent::Resize)
            arrange();
    } else if (event->type() == QEvent::KeyPress && m_layout.keys == Keys::WalkRows) {
        return walk(static_cast<QAbstractButton&>(*watched), static_cast<QKeyEvent*>(event)->key());
    } else if (const int index = focusedIndex(); event->type() == QEvent::FocusIn && index >= 0) {
        m_lastFocused = m_rows.at(index);
        // What is clicked shall not move.
        if (m_layout.keys == Keys::WalkRows && static_cast<QFocusEvent*>(event)->reason() != Qt::MouseFocusReason)
            reveal(index);
        arrange();
    }
    return QFrame::eventFilter(watched, event);
}

void RowList::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    // Only what is exposed: the whole may be hundreds of thousands of pixels high.
    const QRect exposed = event->rect();
    for (int i = std::max(1, indexAt(exposed.top())); i <= lastIndex(); ++i) {
        const int line = m_tops.at(i) - (m_layout.gap + 1) / 2;
        if (line > exposed.bottom())
            break;
        drawHorizontalHairline(painter, m_layout.border, width() - m_layout.border, line,
                               Tokens::of(palette()).divider);
    }
}

} // namespace abissora
