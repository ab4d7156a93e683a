// SPDX-License-Identifier: MIT
#pragma once

#include "Literals.h"

namespace abissora {

/// Where one register lives. Everything of it lies below root(), so that one copy of that folder is a whole backup.
class ApplicationDirectories
{
public:
    /// `root` is made absolute; `own` tells that the user chose it.
    explicit ApplicationDirectories(const QString& root, bool own = false);

    /// The platform's per-user application-support folder: $XDG_DATA_HOME/abissora and its like.
    [[nodiscard]] static ApplicationDirectories standard();

    [[nodiscard]] QString root() const { return m_root; }
    [[nodiscard]] QString preferences() const { return m_root + "/preferences"_L1; }
    [[nodiscard]] QString maintenanceDocuments() const { return m_root + "/MaintenanceDocuments"_L1; }
    [[nodiscard]] QString backups() const { return m_root + "/backups"_L1; }
    [[nodiscard]] QString archivedDocuments() const { return backups() + "/documents"_L1; }
    /// Where this register's data goes that cannot be written below root(): in the platform's state folder, under a
    /// name made from the root.
    [[nodiscard]] QString emergency() const;
    /// The file that keeps window sizes: in the platform's configuration folder, or in root() when the user chose it.
    [[nodiscard]] QString windowStateFile() const;

private:
    QString m_root;
    bool m_own;
};

} // namespace abissora
