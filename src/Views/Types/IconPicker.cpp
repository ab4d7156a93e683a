// SPDX-License-Identifier: MIT
#include "IconPicker.h"

#include "Accessibility.h"
#include "EquipmentTypeFormState.h"
#include "GridFocus.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "Painting.h"
#include "SearchField.h"
#include "SymbolIcon.h"
#include "Tokens.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QVBoxLayout>

namespace abissora {

namespace {

constexpr int columns = 8;
constexpr int cellWidth = 58;
constexpr int cellHeight = 46;
constexpr int leastCellWidth = 40;
constexpr int pictureSide = 24;
constexpr int gap = metrics::spaceS;
constexpr int gapBetweenSections = metrics::spaceL;

} // namespace

DivingIconButton::DivingIconButton(DivingIcons icon, QWidget* parent)
    : IconButton(typeIcon(rawValue(icon)), displayName(icon), parent)
    , m_icon(icon)
{
    setAccessibleChoice(*this);
    setAccessibleDescription(category(icon));
    setCheckable(true);
    setAutoExclusive(true);
}

void DivingIconButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const Tokens& tokens = Tokens::of(palette());
    QStyleOption option;
    option.initFrom(this);
    if (isDown())
        option.state |= QStyle::State_Sunken;
    drawPanel(painter, rect(), metrics::controlRadius,
              isChecked() ? tokens.accentTint : touched(tokens.surface, option),
              isChecked() ? tokens.accentInk : tokens.border);
    if (showsFocusRing(option))
        drawFocusRing(painter, rect(), metrics::controlRadius, palette());
    QRect place(0, 0, pictureSide, pictureSide);
    place.moveCenter(rect().center());
    const QIcon picture = isChecked() ? typeIcon(rawValue(m_icon), NamedColor::blue) : icon();
    picture.paint(&painter, place);
}

IconGrid::IconGrid(QWidget* parent)
    : QWidget(parent)
    , m_focus(new GridFocus(GridFocus::TabStop::Cell, this))
{
    setAccessibleRole(*this, QAccessible::Grouping);
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
        const auto found = std::ranges::find(sections, section.title->text(), &DivingIconsCategory::title);
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
    return {columns * (cellWidth + gap) - gap, arrange(false)};
}

QSize IconGrid::minimumSizeHint() const
{
    return {columns * (leastCellWidth + gap) - gap, arrange(false)};
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

IconPicker::IconPicker(QWidget* parent)
    : GroupBox(u"Selezione Icona"_s, {}, parent)
    , m_search(new SearchField(u"Cerca icona..."_s))
    , m_grid(new IconGrid)
    , m_nothing(new InkLabel(TextStyle::Body, &Tokens::secondaryText, u"Nessuna icona trovata"_s))
{
    m_grid->setAccessibleName(title());
    m_search->setObjectName(u"iconSearch"_s);
    m_nothing->setObjectName(u"noIcon"_s);
    m_nothing->setAlignment(Qt::AlignCenter);
    m_nothing->hide();
    content()->addWidget(m_search);
    content()->addWidget(m_grid);
    content()->addWidget(m_nothing);
    // A screen reader or a dictation sets the text, which is no edit to the field.
    connect(m_search, &SearchField::textChanged, this, &IconPicker::filter);
}

void IconPicker::filter(const QString& searchIconText)
{
    const QList<DivingIconsCategory> sections = filteredIcons(searchIconText);
    m_grid->setSections(sections);
    m_grid->setVisible(!sections.isEmpty());
    m_nothing->setVisible(sections.isEmpty());
}

} // namespace abissora
