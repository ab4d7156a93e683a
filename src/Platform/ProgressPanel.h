// SPDX-License-Identifier: MIT
#pragma once

#include "WorkProgress.h"

#include <QString>
#include <memory>

namespace abissora {

/// Shows the person work that takes long, and lets them cancel it.
class ProgressPanel
{
public:
    /// The work is shown for as long as this lives; it may outlive the panel.
    class Showing
    {
    public:
        virtual ~Showing() = default;
    };

    virtual ~ProgressPanel() = default;

    /// Nothing is seen of work that ends soon. The person cancels `progress` itself.
    [[nodiscard]] virtual std::unique_ptr<Showing> show(const QString& title,
                                                        std::shared_ptr<WorkProgress> progress) = 0;
};

} // namespace abissora
