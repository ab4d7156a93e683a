// SPDX-License-Identifier: MIT
#pragma once

#include "MaintenanceDocumentStore.h"
#include "Opener.h"

class QWidget;

namespace abissora {

/// Opens a stored document, and tells the person over the window of `place` when nothing on this system does. False
/// when there is no such file.
bool openDocument(const QString& name, const MaintenanceDocumentStore& documents, Opener& opener, QWidget& place);

} // namespace abissora
