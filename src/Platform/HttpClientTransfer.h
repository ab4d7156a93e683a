// SPDX-License-Identifier: MIT
#pragma once

#include "HttpClientAnswer.h"
#include "NetworkHttpClient.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>

namespace abissora {

/// One request under way. It has a network of its own, so that nothing is left of it.
class HttpClientTransfer : public QObject
{
    Q_OBJECT

public:
    HttpClientTransfer(QNetworkRequest request, const HttpLimits& limits, QObject* parent);

    void cancel();

    [[nodiscard]] HttpClientAnswer::Awaiter answer() { return m_answer.given(); }

private:
    void readBody();
    void handleFinished();
    void finish(const HttpResult& result);
    void end();
    [[nodiscard]] bool isCutShort() const;
    [[nodiscard]] int status() const;

    QNetworkAccessManager m_network;
    QNetworkReply* m_reply;
    QTimer m_deadline;
    qint64 m_bodyLimit;
    QByteArray m_body;
    HttpClientAnswer m_answer;
};

} // namespace abissora
