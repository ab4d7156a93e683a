// SPDX-License-Identifier: MIT
#include "EquipmentDetailSheet.h"

#include "EquipmentDetailView.h"
#include "Literals.h"
#include "Metrics.h"

#include <QVBoxLayout>

namespace abissora {

EquipmentDetailSheet::EquipmentDetailSheet(const AppContext& context, const Equipment& equipment, QWidget* parent)
    : SheetWindow(parent)
    , m_detail(new EquipmentDetailView(context, equipment))
{
    setWindowTitle(u"Dettagli Attrezzatura"_s);
    auto* layout = new QVBoxLayout(this);
    // The rounded corners lie outside the square screen.
    layout->setContentsMargins(metrics::spaceXS, metrics::spaceS, metrics::spaceXS, metrics::spaceXS);
    layout->addWidget(m_detail);
    connect(m_detail, &EquipmentDetailView::closed, this, &QDialog::reject);
}

QSize EquipmentDetailSheet::preferredSize() const
{
    return {750, 650};
}

QWidget* EquipmentDetailSheet::firstFocus() const
{
    return m_detail->findChild<QWidget*>(u"editEquipment"_s);
}

} // namespace abissora
