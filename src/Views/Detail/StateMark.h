// SPDX-License-Identifier: MIT
#pragma once

#include "Labels.h"

namespace abissora {

/// "Attivo" or "Inattivo" behind a dot in green or gray.
class StateMark : public InkLabel
{
    Q_OBJECT

public:
    explicit StateMark(QWidget* parent = nullptr);

    void setActive(bool active);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_isActive = true;
};

} // namespace abissora
