// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>
#include <chrono>

namespace abissora {

/// What one request may take; beyond it the request is given up.
struct HttpLimits
{
    std::chrono::milliseconds time = std::chrono::minutes(1); ///< for a whole request, redirections included
    qint64 bodyBytes = qint64{1024} * 1024;                   ///< after decompression
    qint64 headBytes = qint64{64} * 1024;                     ///< of all headers, and of what wraps the body's pieces
};

} // namespace abissora
