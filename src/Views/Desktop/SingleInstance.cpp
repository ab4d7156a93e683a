// SPDX-License-Identifier: MIT
#include "SingleInstance.h"

#include "FolderLock.h"
#include "Literals.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QLocalSocket>
#include <QThread>
#ifdef Q_OS_LINUX
#include <sys/socket.h>
#include <unistd.h>
#endif

namespace abissora {

namespace {

constexpr unsigned long pause = 20; ///< ms before a process that does not listen yet, or no more, is asked again
constexpr char answer = '\1';

// A caller may say one line: the number of this form and words, of which the first is its wish.
constexpr const char* lineForm = "1";
constexpr qint64 longestLine = 256; ///< bytes

#ifdef Q_OS_LINUX

/// What a sandbox shares among all starts of an application; empty outside of one.
QString sharedFolder()
{
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    const QString id = qEnvironmentVariable("FLATPAK_ID");
    return runtime.isEmpty() || id.isEmpty() ? QString() : runtime + "/app/"_L1 + id + u'/';
}

// A name without a file makes nothing on the disk, leaves nothing behind and works where the temporary folder is full
// or missing. A sandbox without a network keeps such names from its other starts.
QLocalServer::SocketOptions serverOptions()
{
    return sharedFolder().isEmpty() ? QLocalServer::AbstractNamespaceOption : QLocalServer::UserAccessOption;
}

QLocalSocket::SocketOptions socketOptions()
{
    return sharedFolder().isEmpty() ? QLocalSocket::AbstractNamespaceOption : QLocalSocket::NoOptions;
}

/// Names without a file have no permissions: anybody on this computer may call.
bool mayCall(const QLocalSocket& caller)
{
    ucred theirs{};
    socklen_t size = sizeof theirs;
    const auto descriptor = static_cast<int>(caller.socketDescriptor());
    return ::getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &theirs, &size) == 0 && theirs.uid == ::geteuid();
}

#else

QString sharedFolder()
{
    return {};
}

QLocalServer::SocketOptions serverOptions()
{
    return QLocalServer::UserAccessOption;
}

QLocalSocket::SocketOptions socketOptions()
{
    return QLocalSocket::NoOptions;
}

bool mayCall(const QLocalSocket& /*caller*/)
{
    return true;
}

#endif

} // namespace

SingleInstance::SingleInstance(FolderLock& lock, std::chrono::milliseconds patience, QObject* parent)
    : QObject(parent)
    , m_lock(lock)
    , m_patience(patience)
{
    m_server.setSocketOptions(serverOptions());
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::answerCallers);
}

SingleInstance::Outcome SingleInstance::acquire(const QString& wish)
{
    const QDeadlineTimer deadline(m_patience);
    while (m_lock.acquire() == FolderLock::Outcome::HeldByAnother) {
        if (anotherComesForward(deadline, wish))
            return Outcome::CameForward;
        if (deadline.hasExpired())
            return Outcome::NoAnswer;
        QThread::msleep(pause);
    }
    listen();
    return Outcome::Ours;
}

void SingleInstance::listen()
{
    if (m_server.isListening())
        return;
    QLocalServer::removeServer(serverName());
    m_server.listen(serverName());
}

void SingleInstance::answerCallers()
{
    while (QLocalSocket* caller = m_server.nextPendingConnection()) {
        if (!mayCall(*caller)) {
            caller->deleteLater();
            continue;
        }
        caller->setReadBufferSize(longestLine);
        connect(caller, &QLocalSocket::readyRead, this, [this, caller] { hear(caller); });
        connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
        caller->putChar(answer);
        caller->flush();
        Q_EMIT activationRequested();
        hear(caller);
    }
}

void SingleInstance::hear(QLocalSocket* caller)
{
    if (!caller->canReadLine()) {
        if (caller->bytesAvailable() >= longestLine)
            caller->abort();
        return;
    }
    const QList<QByteArray> words = caller->readLine().trimmed().split(' ');
    caller->disconnectFromServer();
    if (words.size() >= 2 && words.at(0) == lineForm)
        Q_EMIT wished(QString::fromUtf8(words.at(1)));
}

bool SingleInstance::anotherComesForward(const QDeadlineTimer& deadline, const QString& wish) const
{
    const auto left = [&deadline] { return static_cast<int>(deadline.remainingTime()); };
    QLocalSocket socket;
    socket.setSocketOptions(socketOptions());
    socket.connectToServer(serverName());
    if (!socket.waitForConnected(left()))
        return false;
    // The answer first: whoever has heard the wish hangs up, and an answer that came while the wish was written would
    // be waited for in vain.
    if (socket.bytesAvailable() == 0)
        socket.waitForReadyRead(left());
    char answered = 0;
    if (!socket.getChar(&answered) || answered != answer)
        return false;
    if (!wish.isEmpty()) {
        socket.write(QByteArray(lineForm) + ' ' + wish.toUtf8() + '\n');
        socket.waitForBytesWritten(left());
    }
    return true;
}

QString SingleInstance::serverName() const
{
    // Socket names are short; the register's folder need not be.
    const QString folder = QFileInfo(m_lock.folder()).canonicalFilePath();
    const QByteArray hash = QCryptographicHash::hash(folder.toUtf8(), QCryptographicHash::Sha256);
    return sharedFolder() + u"abissora-"_s + QString::fromLatin1(hash.toHex().left(24));
}

} // namespace abissora
