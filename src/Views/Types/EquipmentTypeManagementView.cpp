// SPDX-License-Identifier: MIT
#include "EquipmentTypeManagementView.h"

#include "Buttons.h"

namespace abissora {

namespace {

constexpr QSize preferred(720, 600);

} // namespace

EquipmentTypeManagementView::EquipmentTypeManagementView(const AppContext& context, QWidget* parent)
    : Sheet(QStringLiteral("Gestione Tipologie"), parent)
    , m_context(context)
{
    cancelButton()->setText(QStringLiteral("Chiudi"));
    setPreferredSize(preferred);
}

} // namespace abissora
