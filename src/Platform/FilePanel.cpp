// SPDX-License-Identifier: MIT
#include "FilePanel.h"

namespace abissora {

bool FilePanel::beginAccess(const QString& /*path*/)
{
    return false;
}

void FilePanel::endAccess(const QString& /*path*/) {}

} // namespace abissora
