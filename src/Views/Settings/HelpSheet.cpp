// SPDX-License-Identifier: MIT
#include "HelpSheet.h"

#include "Buttons.h"
#include "HelpView.h"
#include "Literals.h"
#include "Metrics.h"
#include "Separator.h"

#include <QVBoxLayout>

namespace abissora {

HelpSheet::HelpSheet(Opener& opener, QWidget* parent)
    : SheetWindow(parent)
    , m_view(new HelpView(opener))
    , m_close(new PlainButton(u"Chiudi"_s))
{
    setWindowTitle(u"Aiuto"_s);
    m_close->setObjectName(u"close"_s);
    connect(m_close, &QAbstractButton::clicked, this, &QDialog::reject);
    auto* footer = new QVBoxLayout;
    footer->setContentsMargins(metrics::spaceL, metrics::spaceM, metrics::spaceL, metrics::spaceM);
    footer->addWidget(m_close, 0, Qt::AlignRight);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, metrics::spaceS, 1, 1); // the rounded corners lie outside the square view
    layout->setSpacing(0);
    layout->addWidget(m_view, 1);
    layout->addWidget(new Separator);
    layout->addLayout(footer);
}

QSize HelpSheet::preferredSize() const
{
    return {900, 680};
}

QWidget* HelpSheet::firstFocus() const
{
    return m_view->findChild<QWidget*>(u"helpSearch"_s);
}

} // namespace abissora
