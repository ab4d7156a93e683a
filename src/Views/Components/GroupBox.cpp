// SPDX-License-Identifier: MIT
#include "GroupBox.h"

#include "IconView.h"
#include "Metrics.h"
#include "SymbolIcon.h"
#include "TypeScale.h"

#include <QHBoxLayout>
#include <QLabel>

namespace abissora {

GroupBox::GroupBox(const QString& title, const QString& symbol, QWidget* parent)
    : Card(parent)
    , m_title(new QLabel)
{
    m_title->setFont(abissora::font(TextStyle::Headline));
    m_title->setTextFormat(Qt::PlainText);
    auto* header = new QHBoxLayout;
    header->setSpacing(metrics::spaceS);
    if (!symbol.isEmpty())
        header->addWidget(new IconView(symbolIcon(symbol, NamedColor::blue), metrics::iconSize + 2));
    header->addWidget(m_title, 1);
    content()->addLayout(header);
    setTitle(title);
}

QString GroupBox::title() const
{
    return m_title->text();
}

void GroupBox::setTitle(const QString& title)
{
    m_title->setText(title);
    setAccessibleName(title);
}

} // namespace abissora
