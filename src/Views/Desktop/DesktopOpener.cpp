// SPDX-License-Identifier: MIT
#include "DesktopOpener.h"

#include <QDesktopServices>

namespace abissora {

bool DesktopOpener::open(const QUrl& url)
{
    return QDesktopServices::openUrl(url);
}

} // namespace abissora
