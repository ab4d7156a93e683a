// SPDX-License-Identifier: MIT
#include "ApplicationDirectories.h"

#include <QCryptographicHash>
#include <QDir>
#include <QStandardPaths>

namespace abissora {

namespace {

// The generic locations with our own folder: the application-specific ones would move with applicationName.
QString perUserFolder(QStandardPaths::StandardLocation location)
{
    return QStandardPaths::writableLocation(location) + "/abissora"_L1;
}

/// What survives a restart but is worth no backup; where it belongs XDG_STATE_HOME says.
QString stateFolder()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    const QString chosen = qEnvironmentVariable("XDG_STATE_HOME");
    const QString base = QDir::isAbsolutePath(chosen) ? chosen : QDir::homePath() + "/.local/state"_L1;
    return base + "/abissora"_L1;
#else
    return perUserFolder(QStandardPaths::GenericDataLocation) + "-state"_L1;
#endif
}

constexpr qsizetype hashLength = 24;

} // namespace

ApplicationDirectories::ApplicationDirectories(const QString& root, bool own)
    : m_root(QDir::cleanPath(QDir::current().absoluteFilePath(root)))
    , m_own(own)
{}

ApplicationDirectories ApplicationDirectories::standard()
{
    return ApplicationDirectories(perUserFolder(QStandardPaths::GenericDataLocation));
}

QString ApplicationDirectories::emergency() const
{
    const QByteArray hash = QCryptographicHash::hash(m_root.toUtf8(), QCryptographicHash::Sha256).toHex();
    return stateFolder() + u'/' + QString::fromLatin1(hash.left(hashLength));
}

QString ApplicationDirectories::windowStateFile() const
{
    const QString folder = m_own ? m_root : perUserFolder(QStandardPaths::GenericConfigLocation);
    return folder + "/windowstate.ini"_L1;
}

} // namespace abissora
