// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QVariantAnimation>

namespace abissora {

/// A check box drawn as a switch at the trailing edge, its text before it. Without a text give it an accessible name.
class ToggleSwitch : public QCheckBox
{
    Q_OBJECT

public:
    explicit ToggleSwitch(const QString& text = {}, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    [[nodiscard]] bool hitButton(const QPoint& position) const override;

private:
    void slide(bool on);

    QVariantAnimation m_slide;
};

} // namespace abissora
