// SPDX-License-Identifier: MIT
#include "UpdateSheet.h"

#include "Literals.h"
#include "Metrics.h"
#include "UpdateView.h"

#include <QVBoxLayout>

namespace abissora {

UpdateSheet::UpdateSheet(const UpdateInfo& update, const QUrl& website, Opener& opener, QWidget* parent)
    : SheetWindow(parent)
    , m_view(new UpdateView(update, website, opener))
{
    setWindowTitle(u"Aggiornamento disponibile"_s);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(metrics::spaceS, metrics::spaceL, metrics::spaceS, metrics::spaceS);
    layout->addWidget(m_view);
    connect(m_view, &UpdateView::closeRequested, this, &QDialog::accept);
}

QSize UpdateSheet::preferredSize() const
{
    return sizeHint();
}

QWidget* UpdateSheet::firstFocus() const
{
    return m_view->focusProxy();
}

} // namespace abissora
