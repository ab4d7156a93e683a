// SPDX-License-Identifier: MIT
#pragma once

#include <QCoroTask>
#include <QUrl>

namespace abissora {

/// Opens files and addresses in the system's default application.
class Opener
{
public:
    virtual ~Opener() = default;

    /// False when the system has nothing that opens it. Completes on the calling thread; the opener may be gone by
    /// then.
    [[nodiscard]] virtual QCoro::Task<bool> open(QUrl url) = 0;
};

} // namespace abissora
