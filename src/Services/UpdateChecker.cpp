// SPDX-License-Identifier: MIT
#include "UpdateChecker.h"

#include "Literals.h"
#include "RecordJson.h"

#include <charconv>

namespace abissora {

namespace {

constexpr int ok = 200;

UpdateCheckResult failure(UpdateCheckError::Case which)
{
    return tl::unexpected(UpdateCheckFailure(UpdateCheckError{which}));
}

/// An optional sign and decimal digits, nothing else; nothing when it does not fit.
std::optional<std::int64_t> integerFromText(const QString& text)
{
    std::string digits = text.toStdString();
    if (digits.starts_with('+'))
        digits.erase(0, 1);
    if (text.startsWith(u'+') && digits.starts_with('-'))
        return std::nullopt;
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return error == std::errc() && end == digits.data() + digits.size() ? std::optional(value) : std::nullopt;
}

QList<std::int64_t> numbersOf(const QString& version)
{
    QList<std::int64_t> numbers;
    for (const QString& piece : version.split(u'.')) {
        if (const auto number = integerFromText(piece))
            numbers.append(*number);
    }
    return numbers;
}

} // namespace

QString UpdateCheckError::errorDescription() const
{
    switch (which) {
    case Case::network:
        return u"Impossibile contattare il sito. Controlla la connessione."_s;
    case Case::invalidResponse:
        return u"Il server non ha risposto correttamente."_s;
    case Case::invalidManifest:
        return u"Il file di aggiornamento sul sito non è valido."_s;
    }
    Q_UNREACHABLE();
}

UpdateChecker::UpdateChecker(HttpClient& http, const AppInfo& info, const Product& product)
    : m_http(http)
    , m_info(info)
    , m_product(product)
{}

QCoro::Task<UpdateCheckResult> UpdateChecker::checkForUpdates() const
{
    const std::weak_ptr<const bool> alive = m_alive;
    const HttpResult answer = co_await m_http.get(m_product.manifestURL);
    if (!answer)
        co_return tl::unexpected(UpdateCheckFailure(answer.error()));
    if (alive.expired())
        co_return tl::unexpected(UpdateCheckFailure(HttpError{HttpError::Kind::Cancelled, {}}));
    co_return judge(*answer);
}

UpdateCheckResult UpdateChecker::judge(const HttpResponse& response) const
{
    if (response.status != ok)
        return failure(UpdateCheckError::Case::invalidResponse);
    if (!response.body)
        return failure(UpdateCheckError::Case::invalidManifest);
    const auto manifest = decodeManifest(*response.body);
    if (!manifest)
        return failure(UpdateCheckError::Case::invalidManifest);
    auto info = UpdateInfo::from(*manifest);
    if (!info)
        return failure(UpdateCheckError::Case::invalidManifest);
    if (!isNewer(info->version, info->build))
        return std::optional<UpdateInfo>();
    return info;
}

int UpdateChecker::compareVersions(const QString& a, const QString& b)
{
    const QList<std::int64_t> left = numbersOf(a);
    const QList<std::int64_t> right = numbersOf(b);
    for (qsizetype i = 0; i < std::max(left.size(), right.size()); ++i) {
        // QList::value gives 0 beyond the end.
        if (left.value(i) != right.value(i))
            return left.value(i) > right.value(i) ? 1 : -1;
    }
    return 0;
}

bool UpdateChecker::isNewer(const QString& version, std::int64_t build) const
{
    const int order = compareVersions(version, m_info.version());
    return order == 0 ? build > integerFromText(m_info.build()).value_or(0) : order > 0;
}

} // namespace abissora
