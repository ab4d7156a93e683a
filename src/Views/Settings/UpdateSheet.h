// SPDX-License-Identifier: MIT
#pragma once

#include "SheetWindow.h"

class QUrl;

namespace abissora {

class Opener;
class UpdateView;
struct UpdateInfo;

/// The update offer over the settings.
class UpdateSheet : public SheetWindow
{
    Q_OBJECT

public:
    UpdateSheet(const UpdateInfo& update, const QUrl& website, Opener& opener, QWidget* parent);

protected:
    [[nodiscard]] QSize preferredSize() const override;
    [[nodiscard]] QWidget* firstFocus() const override;

private:
    UpdateView* m_view;
};

} // namespace abissora
