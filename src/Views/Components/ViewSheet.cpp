// SPDX-License-Identifier: MIT
#include "ViewSheet.h"

#include "Assembly.h"
#include "Buttons.h"
#include "Cards.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"

namespace abissora {

ViewSheet::ViewSheet(const Content& content, QWidget* parent)
    : SheetWindow(parent)
    , m_preferredSize(content.preferredSize)
    , m_firstFocus(content.firstFocus)
{
    setWindowTitle(content.title);
    auto* layout = inColumn(0, {{content.view, 1}}, content.margins);
    setLayout(layout);
    if (content.closeButton.isEmpty())
        return;
    auto* close = named(new PlainButton(content.closeButton), u"close"_s);
    connect(close, &QAbstractButton::clicked, this, &QDialog::reject);
    layout->addWidget(new Separator);
    layout->addLayout(
        inRow(0, {Stretch(), close}, {metrics::spaceL, metrics::spaceM, metrics::spaceL, metrics::spaceM}));
}

QSize ViewSheet::preferredSize() const
{
    return m_preferredSize.isEmpty() ? sizeHint() : m_preferredSize;
}

QWidget* sheetTitle(const QString& title)
{
    auto* label = new InkLabel(TextStyle::Headline, &Tokens::text, title);
    label->setAlignment(Qt::AlignCenter);
    label->setContentsMargins(metrics::spaceL + 2, metrics::spaceL, metrics::spaceL + 2, metrics::spaceL);
    return label;
}

} // namespace abissora
