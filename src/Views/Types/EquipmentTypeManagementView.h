// SPDX-License-Identifier: MIT
#pragma once

#include "AppContext.h"
#include "Sheet.h"

namespace abissora {

/// "Gestione Tipologie": lists the active types and offers to add, edit and delete them and to go back to the defaults.
class EquipmentTypeManagementView final : public Sheet
{
    Q_OBJECT

public:
    explicit EquipmentTypeManagementView(const AppContext& context, QWidget* parent = nullptr);

private:
    AppContext m_context;
};

} // namespace abissora
