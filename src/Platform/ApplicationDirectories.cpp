// SPDX-License-Identifier: MIT
#include "ApplicationDirectories.h"

#include <QDir>
#include <QStandardPaths>

namespace abissora {

namespace {

// The generic locations with our own folder: the application-specific ones would move with applicationName.
QString perUserFolder(QStandardPaths::StandardLocation location)
{
    return QStandardPaths::writableLocation(location) + "/abissora"_L1;
}

} // namespace

ApplicationDirectories::ApplicationDirectories(const QString& root, bool own)
    : m_root(QDir::cleanPath(QDir::current().absoluteFilePath(root)))
    , m_own(own)
{}

ApplicationDirectories ApplicationDirectories::standard()
{
    return ApplicationDirectories(perUserFolder(QStandardPaths::GenericDataLocation));
}

QString ApplicationDirectories::windowStateFile() const
{
    const QString folder = m_own ? m_root : perUserFolder(QStandardPaths::GenericConfigLocation);
    return folder + "/windowstate.ini"_L1;
}

} // namespace abissora
