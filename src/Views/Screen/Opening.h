// SPDX-License-Identifier: MIT
#pragma once

#include "Opener.h"

class QWidget;

namespace abissora {

// Both tell the person over the window of `place` when nothing on this system opens it, unless `place` is gone by then.
// While one waits for an address, the same place does not ask for it again.

/// Opens a page in the browser. False when this call opened nothing.
QCoro::Task<bool> openPage(const QUrl& address, Opener& opener, QWidget& place);

/// Opens the file of a stored document. False when this call opened nothing.
QCoro::Task<bool> openDocument(const QString& path, Opener& opener, QWidget& place);

} // namespace abissora
