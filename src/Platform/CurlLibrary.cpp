// SPDX-License-Identifier: MIT
#include "CurlLibrary.h"

#include <QLibrary>

namespace abissora {

namespace {

constexpr int curlAbiVersion = 4;

} // namespace

tl::expected<CurlLibrary, QString> CurlLibrary::load()
{
    QLibrary library(u"curl"_s, curlAbiVersion);
    bool complete = library.load();
    if (!complete) {
#ifdef Q_OS_WIN
        library.setFileName(u"libcurl"_s); // where names of libraries begin as they like
#else
        library.setFileNameAndVersion(u"curl-gnutls"_s, curlAbiVersion); // the same functions over other encryption
#endif
        complete = library.load();
    }
    const auto resolve = [&](const char* name, auto& function) {
        function = reinterpret_cast<std::remove_reference_t<decltype(function)>>(library.resolve(name));
        complete = complete && function != nullptr;
    };
    CurlLibrary curl;
    resolve("curl_global_init", curl.globalInit);
    resolve("curl_easy_init", curl.easyInit);
    resolve("curl_easy_setopt", curl.setOption);
    resolve("curl_easy_getinfo", curl.getInfo);
    resolve("curl_easy_strerror", curl.errorText);
    resolve("curl_easy_cleanup", curl.easyCleanup);
    resolve("curl_multi_init", curl.multiInit);
    resolve("curl_multi_setopt", curl.setMultiOption);
    resolve("curl_multi_add_handle", curl.add);
    resolve("curl_multi_remove_handle", curl.remove);
    resolve("curl_multi_socket_action", curl.act);
    resolve("curl_multi_info_read", curl.nextMessage);
    resolve("curl_multi_cleanup", curl.multiCleanup);
    if (!complete)
        return tl::unexpected(library.errorString());
    // Counted by the library; it is never told that it may forget, as it stays loaded.
    if (const CURLcode status = curl.globalInit(CURL_GLOBAL_DEFAULT); status != CURLE_OK)
        return tl::unexpected(QString::fromUtf8(curl.errorText(status)));
    return curl;
}

} // namespace abissora
