// SPDX-License-Identifier: MIT
#pragma once

#include "CurlLibrary.h"
#include "HttpClient.h"
#include "HttpLimits.h"

#include <QObject>
#include <QTimer>
#include <map>
#include <memory>

class QSocketNotifier;

namespace abissora {

struct HttpProxy
{
    QByteArray address; ///< with its scheme; empty when there is none
    QByteArray user;
    QByteArray password;
};

/// One GET over a connection of its own, sent once and never again, without redirections. Driven by the event loop of
/// its thread. The connection ends with the transfer, or with this object if it goes away first, and nobody waits for
/// the look-up of a name.
class HttpTransfer : public QObject
{
    Q_OBJECT

public:
    HttpTransfer(const CurlLibrary& curl, const QUrl& url, const HttpProxy& proxy, const HttpLimits& limits);
    ~HttpTransfer() override;

    /// Ends the connection at once; whoever waits hears nothing any more.
    void giveUp();

    [[nodiscard]] const HttpResult& result() const { return m_result; }
    /// Where the answer sends on to; empty when it does not.
    [[nodiscard]] const QUrl& redirection() const { return m_redirection; }

Q_SIGNALS:
    /// There is a result; not while the constructor runs.
    void ended();

private:
    struct Watch
    {
        std::unique_ptr<QSocketNotifier> incoming;
        std::unique_ptr<QSocketNotifier> outgoing;
    };

    static int watchSocket(CURL*, curl_socket_t socket, int what, void* self, void*);
    static int setTimer(CURLM*, long milliseconds, void* self);
    static std::size_t takeHeader(char* data, std::size_t, std::size_t size, void* self);
    static std::size_t takeBody(char* data, std::size_t, std::size_t size, void* self);
    static int countBytes(CURL*, curl_infotype type, char* data, std::size_t size, void* self);

    void request(const QUrl& url, const HttpProxy& proxy);
    [[nodiscard]] std::unique_ptr<QSocketNotifier> notifier(curl_socket_t socket, bool outgoing);
    void act(curl_socket_t socket, int events);
    void end(CURLcode code);
    [[nodiscard]] HttpResult outcome(CURLcode code) const;
    [[nodiscard]] int status() const;

    CurlLibrary m_curl;
    HttpLimits m_limits;
    CURLM* m_multi;
    CURL* m_easy;
    QTimer m_timer;
    std::map<curl_socket_t, Watch> m_watches;
    QByteArray m_body;
    qint64 m_headBytes = 0;
    qint64 m_wireBytes = 0; ///< of the body, as they came
    bool m_hasHead = false; ///< up to the empty line after it
    bool m_isHeadTooLarge = false;
    bool m_isBodyTooLarge = false;
    HttpResult m_result;
    QUrl m_redirection;
};

} // namespace abissora
