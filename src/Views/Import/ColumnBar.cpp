// SPDX-License-Identifier: MIT
#include "ColumnBar.h"

#include "Accessibility.h"
#include "Assembly.h"
#include "ColumnHeader.h"
#include "ImportDelegate.h"
#include "Literals.h"
#include "TypeScale.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>

namespace abissora {

ColumnBar::ColumnBar(ColumnHeader& header, QWidget* parent)
    : QWidget(parent)
    , m_header(header)
    , m_all(named(new QCheckBox(this), u"allRows"))
{
    setAccessibleRole(*this, QAccessible::Grouping);
    setAccessibleName(u"Che cosa contengono le colonne"_s);
    m_all->setAccessibleName(u"Importa tutte le righe nuove"_s);
    m_all->setToolTip(m_all->accessibleName());
    connect(m_all, &QCheckBox::clicked, this, &ColumnBar::allChosen);
    connect(&header, &QHeaderView::sectionResized, this, &ColumnBar::place);
    connect(&header, &QHeaderView::geometriesChanged, this, &ColumnBar::place);
    header.installEventFilter(this);
}

void ColumnBar::showColumns(const ImportPlan& plan)
{
    if (m_subject != plan.subject())
        makePickers(plan);
    for (qsizetype column = 0; column < m_pickers.size(); ++column) {
        QComboBox& picker = *m_pickers.at(column);
        picker.setCurrentIndex(picker.findData(static_cast<int>(plan.columns().at(column).field)));
    }
    place();
}

void ColumnBar::makePickers(const ImportPlan& plan)
{
    m_subject = plan.subject();
    qDeleteAll(m_pickers);
    m_pickers.clear();
    const qsizetype columns = plan.table() != nullptr ? plan.table()->headings.cells.size() : 0;
    for (qsizetype column = 0; column < columns; ++column)
        m_pickers.append(makePicker(plan, column));
}

QComboBox* ColumnBar::makePicker(const ImportPlan& plan, qsizetype column)
{
    auto* picker = named(new QComboBox(this), u"column%1"_s.arg(column));
    setAccessiblePicker(*picker);
    const QString heading = plan.columns().at(column).heading.simplified();
    picker->setAccessibleName(heading.isEmpty() ? u"Colonna %1"_s.arg(column + 1) : heading);
    picker->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    picker->setFont(abissora::font(TextStyle::BodyMedium));
    picker->installEventFilter(this);
    const auto add = [&](ImportField field) {
        picker->addItem(titleOf(field, plan.subject()), static_cast<int>(field));
    };
    for (const ImportField field : fieldsOf(plan.subject()))
        add(field);
    add(ImportField::None);
    connect(picker, &QComboBox::activated, this, [this, picker, column](int index) {
        Q_EMIT fieldChosen(column, static_cast<ImportField>(picker->itemData(index).toInt()));
    });
    picker->show();
    return picker;
}

void ColumnBar::showAllChosen(bool areChosen, bool canBeChosen)
{
    m_all->setChecked(areChosen);
    m_all->setEnabled(canBeChosen);
}

void ColumnBar::orderTabs(QWidget& table)
{
    QWidget* before = m_all;
    for (QComboBox* picker : std::as_const(m_pickers)) {
        setTabOrder(before, picker);
        before = picker;
    }
    setTabOrder(before, &table);
}

bool ColumnBar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn) {
        if (const qsizetype column = m_pickers.indexOf(qobject_cast<QComboBox*>(watched)); column >= 0)
            Q_EMIT reached(static_cast<int>(column) + 1);
    }
    if (watched == &m_header &&
        (event->type() == QEvent::Resize || event->type() == QEvent::Move || event->type() == QEvent::Show))
        place();
    return QWidget::eventFilter(watched, event);
}

void ColumnBar::place()
{
    const QWidget* const shown = m_header.viewport();
    setGeometry(QRect(shown->mapTo(parentWidget(), QPoint()), shown->size()));
    raise();
    const int height = controlHeight(m_header.fontMetrics());
    const auto placeOf = [this, height](int section) {
        return QRect(m_header.sectionViewportPosition(section), ColumnHeader::air, m_header.sectionSize(section),
                     height);
    };
    for (qsizetype column = 0; column < m_pickers.size(); ++column) {
        constexpr int half = ColumnHeader::between / 2;
        const int section = static_cast<int>(column) + 1;
        if (section < m_header.count())
            m_pickers.at(column)->setGeometry(placeOf(section).adjusted(half, 0, -half, 0));
    }
    if (m_header.count() == 0)
        return;
    QRect box = ImportDelegate::box(placeOf(0));
    box.setWidth(m_all->sizeHint().width());
    m_all->setGeometry(box);
}

} // namespace abissora
