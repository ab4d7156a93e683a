// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

namespace abissora {

/// "SCADUTO" under a warning sign.
class DueBadge : public QFrame
{
    Q_OBJECT

public:
    explicit DueBadge(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace abissora
