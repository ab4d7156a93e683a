// SPDX-License-Identifier: MIT
#pragma once

#include "Answer.h"
#include "HttpClient.h"

#include <QList>
#include <memory>

namespace abissora::test {

/// Records every request and answers it when told to, in the order in which they came or in any other.
class ScriptedHttpClient final : public HttpClient
{
public:
    ScriptedHttpClient() = default;
    Q_DISABLE_COPY_MOVE(ScriptedHttpClient)
    ~ScriptedHttpClient() override
    {
        const HttpResult cancelled(tl::unexpect, HttpError::cancelled());
        while (!m_open.isEmpty())
            answer(cancelled);
    }

    [[nodiscard]] QCoro::Task<HttpResult> get(QUrl url) override
    {
        const auto pending = std::make_shared<Answer<HttpResult>>();
        m_requested.append(url);
        m_open.append(pending);
        co_return co_await pending->given();
    }

    void answer(const HttpResult& result, qsizetype index = 0) { m_open.takeAt(index)->give(result); }
    void answer(int status, const QByteArray& body) { answer(HttpResponse{status, body}); }

    [[nodiscard]] const QList<QUrl>& requested() const { return m_requested; }
    /// Requests without an answer yet.
    [[nodiscard]] qsizetype open() const { return m_open.size(); }

private:
    QList<QUrl> m_requested;
    QList<std::shared_ptr<Answer<HttpResult>>> m_open;
};

} // namespace abissora::test
