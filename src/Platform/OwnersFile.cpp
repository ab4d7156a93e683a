// SPDX-License-Identifier: MIT
#include "OwnersFile.h"

#include "AtomicFile.h"

#include <QFile>
#include <QFileInfo>

namespace abissora {

void makeOwnersFile(const QString& path)
{
    constexpr QFileDevice::Permissions owners = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
    QFile file(path);
    if (!file.exists()) {
        if (!AtomicFile::makeFolder(QFileInfo(path).path()) ||
            !file.open(QIODevice::WriteOnly | QIODevice::NewOnly, owners))
            return;
        file.close();
    }
    file.setPermissions(owners);
}

} // namespace abissora
