// SPDX-License-Identifier: MIT
#pragma once

#include "Literals.h"

#include <QHostAddress>
#include <QList>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QUrl>
#include <functional>
#include <memory>

namespace abissora::test {

/// A server on this machine, in this process, that does with each request what the test tells it to do.
class LocalServer
{
public:
    /// What is done once the request has come.
    using Behaviour = std::function<void(QTcpSocket&)>;

    LocalServer()
    {
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] {
            while (QTcpSocket* socket = m_server.nextPendingConnection()) {
                ++m_connections;
                ++m_open;
                QObject::connect(socket, &QTcpSocket::disconnected, &m_server, [this] { --m_open; });
                QObject::connect(socket, &QTcpSocket::bytesWritten, &m_server,
                                 [this](qint64 bytes) { m_sent += bytes; });
                if (m_greeting)
                    m_greeting(*socket);
                auto received = std::make_shared<QByteArray>();
                QObject::connect(socket, &QTcpSocket::readyRead, &m_server, [=, this] { serve(*socket, *received); });
            }
        });
        if (!m_server.listen(QHostAddress::LocalHost))
            qFatal("no port is free: %s", qPrintable(m_server.errorString()));
        m_port = m_server.serverPort();
    }

    /// What is done with every connection before any request has come on it.
    void greet(Behaviour behaviour) { m_greeting = std::move(behaviour); }
    /// Behaviours are used up one a request; without any, the connection is closed.
    void next(Behaviour behaviour) { m_behaviours.append(std::move(behaviour)); }

    [[nodiscard]] QUrl url(const QString& path = u"/version.json"_s) const
    {
        return QUrl(u"http://127.0.0.1:%1%2"_s.arg(m_port).arg(path));
    }
    /// Head of every request, without the empty line after it.
    [[nodiscard]] const QList<QByteArray>& requests() const { return m_requests; }
    /// All that there ever were.
    [[nodiscard]] int connections() const { return m_connections; }
    /// Those that neither side has ended.
    [[nodiscard]] int open() const { return m_open; }
    /// Bytes that were handed to the system.
    [[nodiscard]] qint64 sent() const { return m_sent; }
    /// Nobody listens from now on.
    void close() { m_server.close(); }

    [[nodiscard]] static Behaviour sends(const QByteArray& bytes)
    {
        return [=](QTcpSocket& socket) {
            socket.write(bytes);
            socket.disconnectFromHost();
        };
    }
    [[nodiscard]] static Behaviour answers(const QByteArray& status, const QByteArray& body,
                                           const QByteArray& headers = {})
    {
        return sends("HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n" +
                     headers + "\r\n" + body);
    }
    [[nodiscard]] static Behaviour closes()
    {
        return [](QTcpSocket& socket) { socket.disconnectFromHost(); };
    }
    [[nodiscard]] static Behaviour resets()
    {
        return [](QTcpSocket& socket) { socket.abort(); };
    }
    [[nodiscard]] static Behaviour redirectsTo(const QUrl& url)
    {
        return answers("302 Found", {}, "Location: " + url.toEncoded() + "\r\n");
    }
    /// Sends this much and then leaves the connection open.
    [[nodiscard]] static Behaviour hangsAfter(const QByteArray& bytes)
    {
        return [=](QTcpSocket& socket) { socket.write(bytes); };
    }
    /// Sends `head`, and then a byte now and then without end.
    [[nodiscard]] static Behaviour dripsAfter(const QByteArray& head)
    {
        return [=](QTcpSocket& socket) {
            socket.write(head);
            auto* drops = new QTimer(&socket);
            QObject::connect(drops, &QTimer::timeout, &socket, [&socket] { socket.write(" "); });
            drops->start(std::chrono::milliseconds(1));
        };
    }

    /// Sends `head`, and then `piece` again and again, as fast as it is taken, without end.
    [[nodiscard]] static Behaviour floodsAfter(const QByteArray& head, const QByteArray& piece)
    {
        return [=](QTcpSocket& socket) {
            socket.write(head + piece);
            QObject::connect(&socket, &QTcpSocket::bytesWritten, &socket, [&socket, piece] {
                while (socket.bytesToWrite() < qint64{64} * 1024)
                    socket.write(piece);
            });
        };
    }

private:
    void serve(QTcpSocket& socket, QByteArray& received)
    {
        received += socket.readAll();
        const qsizetype end = received.indexOf("\r\n\r\n");
        if (end < 0)
            return;
        m_requests.append(received.left(end));
        received.remove(0, end + 4);
        if (m_behaviours.isEmpty())
            socket.abort();
        else
            m_behaviours.takeFirst()(socket);
    }

    QTcpServer m_server;
    quint16 m_port = 0; ///< also after close()
    Behaviour m_greeting;
    QList<Behaviour> m_behaviours;
    int m_connections = 0;
    int m_open = 0;
    qint64 m_sent = 0;
    QList<QByteArray> m_requests;
};

} // namespace abissora::test
