// SPDX-License-Identifier: MIT
#pragma once

#include "Buttons.h"

namespace abissora {

class ProgressIndicator;

/// The button of the update check. While a check is under way its label gives way to a progress indicator and presses
/// are refused; it keeps the focus and its width.
class CheckButton final : public LookButton
{
    Q_OBJECT

public:
    explicit CheckButton(QWidget* parent = nullptr);

    [[nodiscard]] bool isChecking() const { return m_checking; }
    void setChecking(bool checking);

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    void checkRequested();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void dress();
    void placeIndicator();

    ProgressIndicator* m_indicator;
    bool m_checking = false;
};

} // namespace abissora
