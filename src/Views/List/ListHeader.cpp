// SPDX-License-Identifier: MIT
#include "ListHeader.h"

#include "Buttons.h"
#include "Chip.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "SymbolIcon.h"

#include <QVBoxLayout>

namespace abissora {

ListHeader::ListHeader(QWidget* parent)
    : QWidget(parent)
    , m_line(new QHBoxLayout)
    , m_buttonLine(new QHBoxLayout)
    , m_title(new WrapLabel(TextStyle::Title, &Tokens::text, u"Attrezzatura Subacquea"_s))
    , m_refresh(new PlainButton(u"Aggiorna"_s, u"arrow.clockwise"_s))
    , m_add(new PrimaryButton(u"Aggiungi"_s, u"plus"_s))
    , m_chip(new Chip)
{
    m_title->setObjectName(u"listTitle"_s);
    m_refresh->setObjectName(u"refreshButton"_s);
    m_add->setObjectName(u"addButton"_s);
    m_chip->setObjectName(u"filterChip"_s);
    m_chip->hide();

    m_line->setSpacing(metrics::spaceS);
    m_buttonLine->setSpacing(metrics::spaceS);
    m_line->addWidget(m_title);
    m_line->addWidget(m_chip, 0, Qt::AlignVCenter);
    m_line->addStretch(1);
    m_line->addWidget(m_refresh);
    m_line->addWidget(m_add);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(metrics::spaceXS);
    layout->addLayout(m_line);
    layout->addLayout(m_buttonLine);

    connect(m_refresh, &QAbstractButton::clicked, this, &ListHeader::refreshClicked);
    connect(m_add, &QAbstractButton::clicked, this, &ListHeader::addClicked);
    connect(m_chip, &Chip::clearClicked, this, &ListHeader::clearFilterClicked);
}

void ListHeader::setFilter(const std::optional<ListContent::Filter>& filter)
{
    m_chip->setVisible(filter.has_value());
    if (!filter)
        return;
    m_chip->setIcon(typeIcon(filter->appearance.icon, filter->appearance.color));
    m_chip->setText(filter->text);
    placeChip();
}

void ListHeader::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    placeButtons();
    placeChip();
}

void ListHeader::placeButtons()
{
    int word = 0;
    for (const QString& each : m_title->text().split(u' '))
        word = std::max(word, m_title->fontMetrics().horizontalAdvance(each) + 2);
    const int buttons = m_refresh->sizeHint().width() + metrics::spaceS + m_add->sizeHint().width();
    // A title of words in pieces is worse than another line.
    const bool beside = word + 2 * metrics::spaceS + buttons <= width();
    if (beside == (m_line->indexOf(m_add) >= 0))
        return;
    QBoxLayout* const line = beside ? m_line : m_buttonLine;
    line->addWidget(m_refresh);
    line->addWidget(m_add);
    if (!beside)
        m_buttonLine->addStretch();
    else
        delete m_buttonLine->takeAt(0);
}

void ListHeader::placeChip()
{
    int wanted = 0;
    for (const QWidget* part : std::initializer_list<QWidget*>{m_title, m_chip, m_refresh, m_add})
        wanted += part->sizeHint().width() + metrics::spaceS;
    const bool beside = wanted <= width();
    if (beside == (m_line->indexOf(m_chip) >= 0))
        return;
    if (beside)
        m_line->insertWidget(1, m_chip, 0, Qt::AlignVCenter);
    else
        static_cast<QVBoxLayout*>(layout())->addWidget(m_chip, 0, Qt::AlignLeft);
}

} // namespace abissora
