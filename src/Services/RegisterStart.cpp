// SPDX-License-Identifier: MIT
#include "RegisterStart.h"

#include "AtomicFile.h"

namespace abissora {

void clearUp(const ApplicationDirectories& directories, Generations& generations)
{
    for (const QString& folder : {directories.preferences(), directories.maintenanceDocuments(), directories.backups(),
                                  directories.archivedDocuments(), directories.emergency()})
        AtomicFile::removeLeftovers(folder);
    Restoration(directories, generations).complete();
}

} // namespace abissora
