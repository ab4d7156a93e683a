// SPDX-License-Identifier: MIT
#include "ViewSheet.h"

#include "Assembly.h"
#include "Buttons.h"
#include "Cards.h"
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

} // namespace abissora
