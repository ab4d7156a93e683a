// SPDX-License-Identifier: MIT
#include "TableColumns.h"

#include "Literals.h"
#include "Metrics.h"
#include "TypeScale.h"
#include "WordWidths.h"

#include <QFontMetrics>
#include <QtMath>
#include <algorithm>
#include <numeric>

namespace abissora {

namespace {

using enum EquipmentRow::Column;
using Widths = TableColumns::Widths;

constexpr int air = 10;
/// At the usual text size: what a single long text may claim for its column, and what a text is squeezed to.
constexpr int mostForName = 360;
constexpr int mostForMake = 170;
constexpr int leastForName = 70;
constexpr int leastForMake = 34;
/// Of the spare width.
constexpr Widths shares{30, 14, 14, 20, 0, 0};

/// Rounded up: a text in less than its width would end in dots.
int advance(const QString& text, WordWidths& widths)
{
    return qCeil(widths.advance(text));
}

int widest(const QStringList& texts, WordWidths& widths)
{
    int width = 0;
    for (const QString& text : texts)
        width = std::max(width, advance(text, widths));
    return width;
}

/// The least width at which the text has room in two lines.
int inTwoLines(const QString& text, WordWidths& widths)
{
    int width = advance(text, widths);
    for (qsizetype space = text.indexOf(u' '); space >= 0; space = text.indexOf(u' ', space + 1))
        width = std::min(width, std::max(advance(text.left(space), widths), advance(text.mid(space + 1), widths)));
    return width;
}

int widestInTwoLines(const QStringList& texts, WordWidths& widths)
{
    int width = 0;
    for (const QString& text : texts)
        width = std::max(width, inTwoLines(text, widths));
    return width;
}

int sum(const Widths& widths)
{
    return std::accumulate(widths.begin(), widths.end(), 0);
}

/// Takes from the columns what is lacking, from each as far as its bound allows.
void squeeze(Widths& columns, const Widths& bounds, int lack)
{
    int room = 0;
    for (std::size_t i = 0; i < columns.size(); ++i)
        room += std::max(0, columns.at(i) - bounds.at(i));
    int taken = std::clamp(lack, 0, room);
    for (std::size_t i = 0; i < columns.size() && room > 0; ++i) {
        const int own = std::max(0, columns.at(i) - bounds.at(i));
        const int loss = taken * own / room;
        columns.at(i) -= loss;
        taken -= loss;
        room -= own;
    }
}

/// Gives the columns what is over, by their shares.
void spread(Widths& columns, const Widths& among, int spare)
{
    const int all = sum(among);
    if (spare <= 0 || all == 0)
        return;
    int given = 0;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const int extra = spare * among.at(i) / all;
        columns.at(i) += extra;
        given += extra;
    }
    // What the divisions left over.
    const auto first = std::ranges::find_if(among, [](int share) { return share > 0; });
    columns.at(static_cast<std::size_t>(first - among.begin())) += spare - given;
}

} // namespace

QStringList cellLines(const QString& text, WordWidths& widths, int width, int mostLines)
{
    const QString line = QString(text).replace(u'\n', u' ');
    qsizetype space = -1;
    if (mostLines > 1 && advance(line, widths) > width) {
        for (qsizetype next = line.indexOf(u' '); next >= 0; next = line.indexOf(u' ', next + 1)) {
            if (advance(line.left(next), widths) > width)
                break;
            space = next;
        }
    }
    if (space < 0)
        return {widths.elided(line, width)};
    return QStringList(line.left(space)) + cellLines(line.mid(space + 1), widths, width, mostLines - 1);
}

int TableColumns::leftPadding(int column)
{
    return column == NameColumn ? metrics::spaceXS + 2 : metrics::spaceXS;
}

void TableColumns::measure(const ColumnTexts& texts)
{
    // What is measured at every redraw hardly changes.
    const auto body = WordWidths::of(font(TextStyle::Body));
    const auto name = WordWidths::of(font(TextStyle::BodyMedium));
    const auto caption = WordWidths::of(font(TextStyle::Caption));
    const auto title = WordWidths::of(font(TextStyle::CaptionSemibold));
    QFont dueFont = font(TextStyle::Caption);
    dueFont.setBold(true);
    const QFontMetrics bodyMetrics(font(TextStyle::Body));
    constexpr int beforeName = typeIconSize + typeIconGap;
    const int typeName = std::min(widest(texts.typeNames, *caption), withText(mostForName, bodyMetrics) / 2);
    const int remaining = widest(texts.remaining, *WordWidths::of(dueFont));
    const int state = dotSize + dotGap + widest({u"Attivo"_s, u"Inattivo"_s}, *caption);
    const int action = actionIconSize + 2 * metrics::spaceXS;

    const auto bounded = [&](int width, int most) { return std::min(width, withText(most, bodyMetrics)); };
    const Widths whole{beforeName + std::max(bounded(widest(texts.names, *name), mostForName), typeName),
                       bounded(widest(texts.brands, *body), mostForMake),
                       bounded(widest(texts.models, *body), mostForMake),
                       std::max(widest(texts.abbreviatedDates, *body), remaining),
                       state,
                       action};
    const Widths wrapped{beforeName + std::max(bounded(widestInTwoLines(texts.names, *name), mostForName), typeName),
                         bounded(widestInTwoLines(texts.brands, *body), mostForMake),
                         bounded(widestInTwoLines(texts.models, *body), mostForMake),
                         whole.at(NextServiceColumn),
                         state,
                         action};
    const Widths least{beforeName + withText(leastForName, bodyMetrics),
                       withText(leastForMake, bodyMetrics),
                       withText(leastForMake, bodyMetrics),
                       whole.at(NextServiceColumn),
                       state,
                       action};
    for (std::size_t i = 0; i < count; ++i) {
        const int column = static_cast<int>(i);
        const int padding = leftPadding(column) + rightPadding;
        const QString heading = EquipmentRow::title(static_cast<EquipmentRow::Column>(column));
        const int narrowHeading = inTwoLines(heading, *title);
        m_whole.at(i) = std::max(whole.at(i), narrowHeading) + padding;
        m_wrapped.at(i) = std::max(wrapped.at(i), narrowHeading) + padding;
        m_least.at(i) = std::min(m_wrapped.at(i), std::max(least.at(i), narrowHeading) + padding);
        m_airy.at(i) = std::max(m_whole.at(i), advance(heading, *title) + padding) + air;
    }
    m_wholeDate = std::max(widest(texts.dates, *body), remaining) + leftPadding(NextServiceColumn) + rightPadding;
    m_wholeDate = std::max(m_wholeDate, m_whole.at(NextServiceColumn));
    m_airy.at(NextServiceColumn) = std::max(m_airy.at(NextServiceColumn), m_wholeDate + air);
}

void TableColumns::setOwnWidth(int column, std::optional<int> width)
{
    if (width)
        width = std::clamp(*width, leftPadding(column) + rightPadding + metrics::spaceL, mostOwnWidth);
    m_own.at(static_cast<std::size_t>(column)) = width;
}

TableColumns::Layout TableColumns::layOut(int viewportWidth) const
{
    Layout layout{.widths = m_airy};
    Widths& columns = layout.widths;
    Widths among = shares;
    for (std::size_t i = 0; i < count; ++i) {
        if (m_own.at(i)) {
            columns.at(i) = *m_own.at(i);
            among.at(i) = 0;
        }
    }
    const auto giveWay = [&](Widths bounds) {
        for (std::size_t i = 0; i < count; ++i)
            bounds.at(i) = std::min(bounds.at(i), columns.at(i));
        for (std::size_t i = 0; i < count; ++i) {
            if (m_own.at(i))
                bounds.at(i) = columns.at(i);
        }
        squeeze(columns, bounds, sum(columns) - viewportWidth);
    };
    const Widths airy = columns;
    Widths withWholeDates = m_whole;
    withWholeDates.at(NextServiceColumn) = m_wholeDate;
    giveWay(withWholeDates);
    if (sum(columns) > viewportWidth && !m_own.at(NextServiceColumn)) {
        columns = airy;
        columns.at(NextServiceColumn) = m_whole.at(NextServiceColumn) + air;
    }
    giveWay(m_whole);
    Widths nameWrapped = m_whole;
    nameWrapped.at(NameColumn) = m_wrapped.at(NameColumn);
    giveWay(nameWrapped);
    giveWay(m_wrapped);
    giveWay(m_least);
    spread(columns, among, viewportWidth - sum(columns));
    layout.hasWholeDates = columns.at(NextServiceColumn) >= m_wholeDate;
    layout.nameLines = columns.at(NameColumn) >= m_whole.at(NameColumn) ? 1 : 2;
    return layout;
}

} // namespace abissora
