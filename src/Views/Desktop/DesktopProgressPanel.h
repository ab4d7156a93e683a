// SPDX-License-Identifier: MIT
#pragma once

#include "ProgressPanel.h"

#include <chrono>

namespace abissora {

/// A sheet over the window that was in front when the work began, for what takes longer than `patience`. It goes at
/// once when the person cancels.
class DesktopProgressPanel final : public ProgressPanel
{
public:
    explicit DesktopProgressPanel(std::chrono::milliseconds patience = std::chrono::seconds(1));

    [[nodiscard]] std::unique_ptr<Showing> show(const QString& title, std::shared_ptr<WorkProgress> progress) override;

private:
    std::chrono::milliseconds m_patience;
};

} // namespace abissora
