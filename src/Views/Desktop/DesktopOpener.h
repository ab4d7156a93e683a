// SPDX-License-Identifier: MIT
#pragma once

#include "Opener.h"

#include <chrono>

namespace abissora {

/// Asks the desktop. Where that is done by a command, a command that fails soon tells that nothing opens the address;
/// one that goes on is taken for the opened application itself.
class DesktopOpener final : public Opener
{
public:
    explicit DesktopOpener(std::chrono::milliseconds patience = std::chrono::seconds(3));

    [[nodiscard]] QCoro::Task<bool> open(QUrl url) override;

private:
    std::chrono::milliseconds m_patience;
};

} // namespace abissora
