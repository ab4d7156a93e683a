// SPDX-License-Identifier: MIT
#include "IconGrid.h"

#include "DivingIconButton.h"
#include "GridFocus.h"
#include "Metrics.h"
#include "TypesAccessibility.h"

#include <QEvent>
#include <QStyle>

namespace abissora {

namespace {

constexpr int gap = metrics::spaceS;
constexpr int gapBetweenSections = metrics::spaceL;

} // namespace

IconGrid::IconGrid(QWidget* parent)
    : QWidget(parent)
    , m_focus(new GridFocus(GridFocus::TabStop::Cell, this))
{
    provideTypesAccessibility();
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    for (const auto& [title, icons] : categorizedDivingIcons()) {
        Section section{new InkLabel(TextStyle::Caption, &Tokens::secondaryText, title), {}, {}};
        section.title->setParent(this);
        for (const DivingIcons icon : icons) {
            auto* cell = new DivingIconButton(icon, this);
            cell->setObjectName(rawValue(icon));
            connect(cell, &QAbstractButton::clicked, this, [this, icon] { choose(icon); });
            section.cells.append(cell);
        }
        m_sections.append(section);
    }
    setSections(categorizedDivingIcons());
    setSelectedIcon(m_selectedIcon);
    connect(m_focus, &GridFocus::entered, this, &IconGrid::entered);
}

void IconGrid::setSections(const QList<DivingIconsCategory>& sections)
{
    for (Section& section : m_sections) {
        const auto found = std::find_if(sections.begin(), sections.end(), [&section](const DivingIconsCategory& one) {
            return one.title == section.title->text();
        });
        const QList<DivingIcons> icons = found == sections.end() ? QList<DivingIcons>() : found->icons;
        section.shown.clear();
        for (DivingIconButton* cell : std::as_const(section.cells)) {
            const bool shown = icons.contains(cell->divingIcon());
            cell->setVisible(shown);
            if (shown)
                section.shown.append(cell);
        }
        section.title->setVisible(!section.shown.isEmpty());
    }
    followTheShown();
}

void IconGrid::followTheShown()
{
    QList<GridFocus::Row> rows;
    for (const Section& section : std::as_const(m_sections)) {
        for (qsizetype first = 0; first < section.shown.size(); first += columns) {
            const auto cells = section.shown.mid(first, columns);
            rows.emplaceBack(cells.begin(), cells.end());
        }
    }
    m_focus->setRows(rows);
    setSelectedIcon(m_selectedIcon);
    updateGeometry();
    arrange(true);
}

void IconGrid::setSelectedIcon(DivingIcons icon)
{
    m_selectedIcon = icon;
    for (const Section& section : std::as_const(m_sections)) {
        for (DivingIconButton* cell : section.cells) {
            if (cell->divingIcon() != icon)
                continue;
            cell->setChecked(true);
            m_focus->setCurrent(cell);
        }
    }
}

void IconGrid::choose(DivingIcons icon)
{
    if (icon == m_selectedIcon)
        return;
    m_selectedIcon = icon;
    Q_EMIT chosen(icon);
}

int IconGrid::arrange(bool move) const
{
    int y = 0;
    for (const Section& section : m_sections) {
        if (section.shown.isEmpty())
            continue;
        y += y > 0 ? gapBetweenSections : 0;
        const int titleHeight = section.title->sizeHint().height();
        if (move)
            section.title->setGeometry(0, y, width(), titleHeight);
        y += titleHeight + metrics::spaceXS;
        const int cellHeight = section.shown.first()->sizeHint().height();
        for (int i = 0; i < section.shown.size(); ++i) {
            const int column = i % columns;
            // Rounded at both edges, so that the cells fill the width exactly.
            const int left = column * (width() + gap) / columns;
            const int right = (column + 1) * (width() + gap) / columns - gap;
            const QRect place(left, y + i / columns * (cellHeight + gap), right - left, cellHeight);
            if (move)
                section.shown.at(i)->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
        }
        const int lines = static_cast<int>((section.shown.size() + columns - 1) / columns);
        y += lines * (cellHeight + gap) - gap;
    }
    return y;
}

QSize IconGrid::sizeHint() const
{
    const QSize cell = m_sections.first().cells.first()->sizeHint();
    return {columns * (cell.width() + gap) - gap, arrange(false)};
}

QSize IconGrid::minimumSizeHint() const
{
    const QSize cell = m_sections.first().cells.first()->minimumSizeHint();
    return {columns * (cell.width() + gap) - gap, arrange(false)};
}

void IconGrid::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange) {
        updateGeometry();
        arrange(true);
    }
}

void IconGrid::resizeEvent(QResizeEvent*)
{
    arrange(true);
}

} // namespace abissora
