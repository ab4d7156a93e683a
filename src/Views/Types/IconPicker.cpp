// SPDX-License-Identifier: MIT
#include "IconPicker.h"

#include "IconFilter.h"
#include "IconGrid.h"
#include "Literals.h"
#include "SearchField.h"

#include <QVBoxLayout>

namespace abissora {

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
