// SPDX-License-Identifier: MIT
#include "SingleInstance.h"

#include "Literals.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLocalSocket>

namespace abissora {

namespace {

constexpr int connectionTimeout = 1000; // ms

QString prepared(const QString& folder)
{
    QDir().mkpath(folder);
    return QDir(folder).canonicalPath();
}

} // namespace

SingleInstance::SingleInstance(const QString& folder, QObject* parent)
    : QObject(parent)
    , m_lock(prepared(folder) + u"/abissora.lock"_s)
{
    // Socket names are short; the register's folder need not be.
    const QByteArray hash = QCryptographicHash::hash(prepared(folder).toUtf8(), QCryptographicHash::Sha256);
    m_serverName = u"abissora-"_s + QString::fromLatin1(hash.toHex().left(24));
    m_lock.setStaleLockTime(0);
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* caller = m_server.nextPendingConnection()) {
            caller->deleteLater();
            Q_EMIT activationRequested();
        }
    });
}

bool SingleInstance::acquire()
{
    if (!m_lock.tryLock(0) && m_lock.error() == QLockFile::LockFailedError) {
        askToComeForward();
        return false;
    }
    QLocalServer::removeServer(m_serverName);
    m_server.listen(m_serverName);
    return true;
}

void SingleInstance::askToComeForward() const
{
    QLocalSocket socket;
    socket.connectToServer(m_serverName);
    socket.waitForConnected(connectionTimeout);
}

} // namespace abissora
