// SPDX-License-Identifier: MIT
#include "ColumnHeader.h"

#include "Accessibility.h"
#include "Assembly.h"
#include "ImportDelegate.h"
#include "Literals.h"
#include "Metrics.h"
#include "Painting.h"
#include "Tokens.h"
#include "TypeScale.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPainter>

namespace abissora {

namespace {

constexpr int air = 8;     ///< above the pickers and below the headings
constexpr int between = 4; ///< columns, and a picker and its heading

QFontMetrics headingMetrics()
{
    return QFontMetrics(abissora::font(TextStyle::Caption));
}

} // namespace

ColumnHeader::ColumnHeader(QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent)
    , m_all(named(new QCheckBox(viewport()), u"allRows"))
{
    m_all->setAccessibleName(u"Importa tutte le righe nuove"_s);
    m_all->setToolTip(m_all->accessibleName());
    setHighlightSections(false);
    setSectionsClickable(false);
    setMinimumSectionSize(1);
    connect(m_all, &QCheckBox::clicked, this, &ColumnHeader::allChosen);
    connect(this, &QHeaderView::sectionResized, this, &ColumnHeader::place);
    connect(this, &QHeaderView::geometriesChanged, this, &ColumnHeader::place);
}

void ColumnHeader::showColumns(const ImportPlan& plan)
{
    for (QComboBox* picker : std::as_const(m_pickers))
        delete picker;
    m_pickers.clear();
    m_headings.clear();
    for (qsizetype column = 0; column < plan.columns().size(); ++column) {
        const bool isOfFile = plan.table() != nullptr && column < plan.table()->headings.cells.size();
        m_pickers.append(isOfFile ? makePicker(plan, column) : nullptr);
        m_headings.append(plan.columns().at(column).heading.simplified());
    }
    // As they stand: the box, the pickers, the rows.
    QWidget* before = m_all;
    for (QComboBox* picker : std::as_const(m_pickers)) {
        if (picker == nullptr)
            continue;
        setTabOrder(before, picker);
        before = picker;
    }
    setTabOrder(before, parentWidget());
    place();
}

QComboBox* ColumnHeader::makePicker(const ImportPlan& plan, qsizetype column)
{
    auto* picker = named(new QComboBox(viewport()), u"column%1"_s.arg(column));
    setAccessiblePicker(*picker);
    const QString heading = plan.columns().at(column).heading.simplified();
    picker->setAccessibleName(heading.isEmpty() ? u"Colonna %1"_s.arg(column + 1) : heading);
    picker->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    picker->setFont(abissora::font(TextStyle::BodyMedium));
    picker->installEventFilter(this);
    const auto add = [&](ImportField field) {
        picker->addItem(titleOf(field, plan.subject()), static_cast<int>(field));
        if (field == plan.columns().at(column).field)
            picker->setCurrentIndex(picker->count() - 1);
    };
    for (const ImportField field : fieldsOf(plan.subject()))
        add(field);
    add(ImportField::None);
    const int section = static_cast<int>(column) + 1;
    connect(picker, &QComboBox::activated, this, [this, picker, section](int index) {
        Q_EMIT fieldChosen(section, static_cast<ImportField>(picker->itemData(index).toInt()));
    });
    picker->show();
    return picker;
}

void ColumnHeader::showAllChosen(bool areChosen, bool canBeChosen)
{
    m_all->setChecked(areChosen);
    m_all->setEnabled(canBeChosen);
}

QSize ColumnHeader::sizeHint() const
{
    const int picker = controlHeight(fontMetrics());
    return {QHeaderView::sizeHint().width(), air + picker + between + headingMetrics().height() + air};
}

int ColumnHeader::columnWidth(int section) const
{
    if (section == 0)
        return m_all->sizeHint().width();
    const QComboBox* const picker = m_pickers.at(section - 1);
    constexpr int arrowRoom = 34;
    const QString title = model()->headerData(section, Qt::Horizontal).toString();
    const int titleWidth = QFontMetrics(abissora::font(TextStyle::BodyMedium)).horizontalAdvance(title) +
                           (picker != nullptr ? arrowRoom : 0);
    return std::max(titleWidth, headingMetrics().horizontalAdvance(m_headings.at(section - 1))) +
           2 * ImportDelegate::padding;
}

void ColumnHeader::paintSection(QPainter* painter, const QRect& rect, int section) const
{
    const Tokens& tokens = Tokens::of(palette());
    drawHorizontalHairline(*painter, rect.left(), rect.right() + 1, rect.bottom(), tokens.divider);
    if (section == 0 || section > m_pickers.size())
        return;
    const QRect room = rect.adjusted(ImportDelegate::padding, 0, -ImportDelegate::padding, 0);
    const int picker = controlHeight(fontMetrics());
    if (m_pickers.at(section - 1) == nullptr) {
        painter->setFont(abissora::font(TextStyle::BodyMedium));
        painter->setPen(tokens.text);
        painter->drawText(QRect(room.left(), rect.top() + air, room.width(), picker),
                          Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                          model()->headerData(section, Qt::Horizontal).toString());
        return;
    }
    painter->setFont(abissora::font(TextStyle::Caption));
    painter->setPen(tokens.secondaryText);
    const QRect line(room.left(), rect.top() + air + picker + between, room.width(), headingMetrics().height());
    painter->drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                      headingMetrics().elidedText(m_headings.at(section - 1), Qt::ElideRight, line.width()));
}

void ColumnHeader::resizeEvent(QResizeEvent* event)
{
    QHeaderView::resizeEvent(event);
    place();
}

bool ColumnHeader::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn) {
        if (const qsizetype column = m_pickers.indexOf(static_cast<QComboBox*>(watched)); column >= 0)
            Q_EMIT reached(static_cast<int>(column) + 1);
    }
    return QHeaderView::eventFilter(watched, event);
}

void ColumnHeader::place()
{
    const int picker = controlHeight(fontMetrics());
    for (qsizetype column = 0; column < m_pickers.size(); ++column) {
        const int section = static_cast<int>(column) + 1;
        if (m_pickers.at(column) != nullptr && section < count())
            m_pickers.at(column)->setGeometry(sectionViewportPosition(section) + between / 2, air,
                                              sectionSize(section) - between, picker);
    }
    if (count() == 0)
        return;
    QRect box = ImportDelegate::box(QRect(sectionViewportPosition(0), air, sectionSize(0), picker));
    box.setWidth(m_all->sizeHint().width());
    m_all->setGeometry(box);
}

} // namespace abissora
