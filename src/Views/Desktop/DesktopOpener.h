// SPDX-License-Identifier: MIT
#pragma once

#include "Opener.h"

namespace abissora {

/// Asks the desktop.
class DesktopOpener final : public Opener
{
public:
    bool open(const QUrl& url) override;
};

} // namespace abissora
