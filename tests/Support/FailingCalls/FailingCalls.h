// SPDX-License-Identifier: MIT
#pragma once

#include "CallPlan.h"

#include <QString>
#include <functional>

namespace abissora::test {

/// While it lives the calls of the system that this process makes under a folder fail as a plan says; see CallPlan.h.
class FailingCalls
{
public:
    FailingCalls(
        const char* plan, const QString& folder, std::function<void()> hook = [] {})
        : m_hook(std::move(hook))
    {
        calls::setHook([](void* self) { static_cast<FailingCalls*>(self)->m_hook(); }, this);
        if (!calls::begin(plan, folder.toStdString()))
            qFatal("not a plan: %s", plan);
    }
    ~FailingCalls() { calls::begin({}, {}); }
    Q_DISABLE_COPY_MOVE(FailingCalls)

    /// How many calls changed the disk until now.
    [[nodiscard]] static unsigned changes() { return calls::changes(); }

private:
    std::function<void()> m_hook;
};

} // namespace abissora::test
