// SPDX-License-Identifier: MIT
#pragma once

#include "AppContext.h"
#include "SheetWindow.h"

namespace abissora {

class EquipmentDetailView;

/// The detail screen over another screen.
class EquipmentDetailSheet final : public SheetWindow
{
    Q_OBJECT

public:
    EquipmentDetailSheet(const AppContext& context, const Equipment& equipment, QWidget* parent = nullptr);

    [[nodiscard]] EquipmentDetailView& detail() { return *m_detail; }

protected:
    [[nodiscard]] QSize preferredSize() const override;
    [[nodiscard]] QWidget* firstFocus() const override;

private:
    EquipmentDetailView* m_detail;
};

} // namespace abissora
