// SPDX-License-Identifier: MIT
#include "StateList.h"

#include "Literals.h"
#include "Metrics.h"
#include "ScrollPane.h"
#include "StateRow.h"
#include "Tokens.h"

#include <QPainter>

namespace abissora {

namespace {

constexpr int border = metrics::spaceXS;

/// The ground of lists and tables.
class Surface final : public ScrollPane
{
protected:
    void paintEvent(QPaintEvent* event) override
    {
        QPainter(viewport()).fillRect(viewport()->rect(), Tokens::of(palette()).surface);
        ScrollPane::paintEvent(event);
    }
};

} // namespace

StateList::StateList(RestoreContent& content)
    : StateList(content, *new Surface)
{}

StateList::StateList(RestoreContent& content, ScrollPane& area)
    : RowList(area, {.keys = Keys::WalkRows, .border = border, .reserve = 1})
    , m_content(content)
    , m_area(area)
{
    setObjectName(u"states"_s);
    setAccessibleName(u"Stati precedenti"_s);
    area.setWidget(this);
    setAutoFillBackground(false); // setWidget() makes it fill
    QList<QUuid> ids;
    for (const auto& state : content.states())
        ids.append(QUuid::createUuidV5(QUuid(), state.name));
    showItems(ids);
    connect(&content, &RestoreContent::rowRead, this, &StateList::showState);
}

QWidget& StateList::area() const
{
    return m_area;
}

void StateList::choose(qsizetype index)
{
    if (index == m_chosen)
        return;
    m_chosen = index;
    for (StateRow* row : rowsAs<StateRow>())
        row->button().setChosen(indexOf(*row) == index);
    Q_EMIT chosenChanged(index);
}

QWidget* StateList::chosenButton() const
{
    for (const StateRow* row : rowsAs<StateRow>()) {
        if (m_chosen >= 0 && indexOf(*row) == m_chosen)
            return &row->button();
    }
    return nullptr;
}

void StateList::paintEvent(QPaintEvent* event)
{
    // No lines between the rows. NOLINTNEXTLINE(bugprone-parent-virtual-call)
    QFrame::paintEvent(event); // clazy:exclude=skipped-base-method
}

QWidget* StateList::makeRow()
{
    auto* row = new StateRow(this);
    connect(&row->button(), &QAbstractButton::clicked, this, [this, row] {
        StateButton& button = row->button();
        // Pressed by a screen reader it does not have the focus yet; what has it stays, however far one scrolls.
        if (!button.hasFocus())
            button.setFocus(Qt::OtherFocusReason);
        button.setChosen(true); // of a chosen one a click takes the mark away
        choose(indexOf(*row));
    });
    return row;
}

void StateList::fillRow(QWidget& widget, qsizetype index)
{
    auto& row = static_cast<StateRow&>(widget);
    row.setGroupTitle(m_content.groupTitleAbove(index));
    if (&widget == m_measuring)
        return; // every state is as high as the others, and its file need not be read to know
    m_shown.insert(&widget, index);
    row.button().setState(m_content.row(index));
    row.button().setChosen(index == m_chosen);
}

QString StateList::shapeOf(const QWidget& ruler, qsizetype index) const
{
    m_measuring = &ruler;
    return m_content.groupTitleAbove(index);
}

void StateList::showState(qsizetype index)
{
    for (const StateRow* row : rowsAs<StateRow>()) {
        if (indexOf(*row) == index)
            row->button().setState(m_content.row(index));
    }
}

qsizetype StateList::indexOf(const StateRow& row) const
{
    return m_shown.value(&row, -1);
}

} // namespace abissora
