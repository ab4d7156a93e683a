// SPDX-License-Identifier: MIT
#include "SegmentedControl.h"

#include "Accessibility.h"
#include "Metrics.h"
#include "Painting.h"
#include "Segment.h"
#include "Tokens.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPainter>

namespace abissora {

SegmentedControl::SegmentedControl(Purpose purpose, QWidget* parent)
    : QWidget(parent)
    , m_purpose(purpose)
    , m_group(new QButtonGroup(this))
{
    setAccessibleRole(*this, purpose == Purpose::Tabs ? QAccessible::PageTabList : QAccessible::Grouping);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(3, 3, 3, 3);
    layout->setSpacing(2);
    // Not idClicked, which leaves out a screen reader's choosing.
    connect(m_group, &QButtonGroup::idToggled, this, [this](int index, bool chosen) {
        if (chosen)
            choose(index);
    });
}

void SegmentedControl::addSegment(const QString& symbol, const QString& text)
{
    const auto role = m_purpose == Purpose::Tabs ? QAccessible::PageTab : QAccessible::RadioButton;
    auto* segment = new Segment(role, symbol, text, this);
    segment->setFocusPolicy(Qt::StrongFocus);
    m_group->addButton(segment, count());
    layout()->addWidget(segment);
}

void SegmentedControl::addSegment(const QString& text)
{
    addSegment({}, text);
}

int SegmentedControl::count() const
{
    return static_cast<int>(m_group->buttons().size());
}

int SegmentedControl::currentIndex() const
{
    return m_current;
}

void SegmentedControl::setCurrentIndex(int index)
{
    m_current = m_group->button(index) != nullptr ? index : -1;
    if (m_current >= 0) {
        m_group->button(m_current)->setChecked(true);
    } else if (QAbstractButton* const checked = m_group->checkedButton()) {
        m_group->setExclusive(false);
        checked->setChecked(false);
        m_group->setExclusive(true);
    }
}

void SegmentedControl::choose(int index)
{
    if (index == m_current)
        return;
    m_current = index;
    Q_EMIT activated(index);
}

void SegmentedControl::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const Tokens& tokens = Tokens::of(palette());
    drawPanel(painter, rect(), metrics::controlRadius + 2,
              schemeOf(palette()) == Scheme::Dark ? tokens.divider : tokens.sidebar, tokens.border);
}

} // namespace abissora
