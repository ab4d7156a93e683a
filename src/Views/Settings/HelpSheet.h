// SPDX-License-Identifier: MIT
#pragma once

#include "SheetWindow.h"

namespace abissora {

class HelpView;
class Opener;
class PlainButton;

/// The guide over the settings.
class HelpSheet : public SheetWindow
{
    Q_OBJECT

public:
    /// `opener` must outlive it.
    HelpSheet(Opener& opener, QWidget* parent);

protected:
    [[nodiscard]] QSize preferredSize() const override;
    [[nodiscard]] QWidget* firstFocus() const override;

private:
    HelpView* m_view;
    PlainButton* m_close;
};

} // namespace abissora
