// SPDX-License-Identifier: MIT
#pragma once

#include "IoError.h"
#include "WorkProgress.h"

#include <QCoroTask>
#include <functional>
#include <memory>

namespace abissora {

/// Does what would keep the interface from answering.
class LongWork
{
public:
    /// Runs on another thread and may outlive everybody else, so it owns what it works with. It tells how far it is
    /// and ends soon once it is cancelled.
    using Function = std::function<IoResult<void>(WorkProgress& progress)>;

    virtual ~LongWork() = default;

    /// Completes on the calling thread, always, with the function's own outcome. When this object goes away, what is
    /// under way is cancelled; "Operation canceled" is the answer for what does not end even then. The title tells the
    /// person what is being done; without one she is shown nothing.
    [[nodiscard]] virtual QCoro::Task<IoResult<void>> run(QString title, Function work,
                                                          std::shared_ptr<WorkProgress> progress) = 0;
};

} // namespace abissora
