// SPDX-License-Identifier: MIT
#pragma once

#include "AppContext.h"

#include <QWidget>

namespace abissora {

/// What the program is and who made it; as large as it needs to be. Read when it is made.
class AboutView : public QWidget
{
    Q_OBJECT

public:
    explicit AboutView(const AppContext& context, QWidget* parent = nullptr);

protected:
    /// Takes the focus, so that no value looks chosen.
    void showEvent(QShowEvent* event) override;
};

} // namespace abissora
