// SPDX-License-Identifier: MIT
#pragma once

#include <QBasicTimer>
#include <QWidget>

namespace abissora {

/// Says that something is under way. It turns while it is visible, unless animations are off. Give it an accessible
/// name.
class ProgressIndicator : public QWidget
{
    Q_OBJECT

public:
    explicit ProgressIndicator(QWidget* parent = nullptr);

    [[nodiscard]] bool isTurning() const { return m_timer.isActive(); }
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QBasicTimer m_timer;
    int m_phase = 0;
};

} // namespace abissora
