// SPDX-License-Identifier: MIT
#pragma once

#include "AppContext.h"
#include "SheetWindow.h"

namespace abissora {

class UpdateView;

/// The update offer over the settings.
class UpdateSheet : public SheetWindow
{
    Q_OBJECT

public:
    UpdateSheet(const AppContext& context, const UpdateInfo& update, QWidget* parent);

protected:
    [[nodiscard]] QSize preferredSize() const override;
    [[nodiscard]] QWidget* firstFocus() const override;

private:
    UpdateView* m_view;
};

} // namespace abissora
