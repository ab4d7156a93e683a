// SPDX-License-Identifier: MIT
#pragma once

#include "Literals.h"

#include <curl/curl.h>
#include <tl/expected.hpp>

namespace abissora {

/// The functions of libcurl that are used here. The library is loaded when the first request begins, as it brings some
/// thirty others with it, which a program that never checks for updates need not wait for.
struct CurlLibrary
{
    decltype(&curl_global_init) globalInit = nullptr;
    decltype(&curl_easy_init) easyInit = nullptr;
    decltype(&curl_easy_setopt) setOption = nullptr;
    decltype(&curl_easy_getinfo) getInfo = nullptr;
    decltype(&curl_easy_strerror) errorText = nullptr;
    decltype(&curl_easy_cleanup) easyCleanup = nullptr;
    decltype(&curl_multi_init) multiInit = nullptr;
    decltype(&curl_multi_setopt) setMultiOption = nullptr;
    decltype(&curl_multi_add_handle) add = nullptr;
    decltype(&curl_multi_remove_handle) remove = nullptr;
    decltype(&curl_multi_socket_action) act = nullptr;
    decltype(&curl_multi_info_read) nextMessage = nullptr;
    decltype(&curl_multi_cleanup) multiCleanup = nullptr;

    /// Loads it at the first call; an error says why that failed and may be gone at the next call. Stays loaded.
    [[nodiscard]] static tl::expected<CurlLibrary, QString> load();
};

} // namespace abissora
