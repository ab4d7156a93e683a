// SPDX-License-Identifier: MIT
#include "IconPicker.h"

#include "IconFilter.h"
#include "IconGrid.h"
#include "SearchField.h"

#include <QVBoxLayout>

namespace abissora {

IconPicker::IconPicker(QWidget* parent)
    : GroupBox(QStringLiteral("Selezione Icona"), {}, parent)
    , m_search(new SearchField(QStringLiteral("Cerca icona...")))
    , m_grid(new IconGrid)
    , m_nothing(new InkLabel(TextStyle::Body, &Tokens::secondaryText, QStringLiteral("Nessuna icona trovata")))
{
    m_grid->setAccessibleName(title());
    m_search->setObjectName(QStringLiteral("iconSearch"));
    m_nothing->setObjectName(QStringLiteral("noIcon"));
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
