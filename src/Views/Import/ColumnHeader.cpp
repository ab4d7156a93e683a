// SPDX-License-Identifier: MIT
#include "ColumnHeader.h"

#include "ImportDelegate.h"
#include "Painting.h"
#include "Tokens.h"
#include "TypeScale.h"

#include <QPainter>

namespace abissora {

namespace {

QFontMetrics headingMetrics()
{
    return QFontMetrics(font(TextStyle::Caption));
}

} // namespace

ColumnHeader::ColumnHeader(QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent)
{
    setHighlightSections(false);
    setSectionsClickable(false);
    setMinimumSectionSize(1);
}

void ColumnHeader::showColumns(const ImportPlan& plan)
{
    m_headings.clear();
    for (const ImportColumn& column : plan.columns())
        m_headings.append(column.heading.simplified());
    m_columnsOfFile = plan.table() != nullptr ? plan.table()->headings.cells.size() : 0;
    viewport()->update();
}

QSize ColumnHeader::sizeHint() const
{
    const int picker = controlHeight(fontMetrics());
    return {QHeaderView::sizeHint().width(), air + picker + between + headingMetrics().height() + air};
}

int ColumnHeader::columnWidth(int section) const
{
    constexpr int arrowRoom = 34;
    const QString title = model()->headerData(section, Qt::Horizontal).toString();
    const int titleWidth = QFontMetrics(abissora::font(TextStyle::BodyMedium)).horizontalAdvance(title) +
                           (section <= m_columnsOfFile ? arrowRoom : 0);
    return std::max(titleWidth, headingMetrics().horizontalAdvance(m_headings.at(section - 1))) +
           2 * ImportDelegate::padding;
}

void ColumnHeader::paintSection(QPainter* painter, const QRect& rect, int section) const
{
    const Tokens& tokens = Tokens::of(palette());
    drawHorizontalHairline(*painter, rect.left(), rect.right() + 1, rect.bottom(), tokens.divider);
    if (section == 0 || section > m_headings.size())
        return;
    const QRect room = rect.adjusted(ImportDelegate::padding, 0, -ImportDelegate::padding, 0);
    const int picker = controlHeight(fontMetrics());
    const bool isOfFile = section <= m_columnsOfFile;
    const QFont ink = abissora::font(isOfFile ? TextStyle::Caption : TextStyle::BodyMedium);
    const QString text =
        isOfFile ? m_headings.at(section - 1) : model()->headerData(section, Qt::Horizontal).toString();
    const QRect line =
        isOfFile ? QRect(room.left(), rect.top() + air + picker + between, room.width(), headingMetrics().height())
                 : QRect(room.left(), rect.top() + air, room.width(), picker);
    painter->setFont(ink);
    painter->setPen(isOfFile ? tokens.secondaryText : tokens.text);
    painter->drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                      QFontMetrics(ink).elidedText(text, Qt::ElideRight, line.width()));
}

} // namespace abissora
