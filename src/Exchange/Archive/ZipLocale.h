// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#if defined(Q_OS_UNIX)
#include <clocale>
#include <locale.h>
#endif
#if defined(Q_OS_DARWIN)
#include <xlocale.h>
#endif

namespace abissora {

/// While it lives, the calling thread takes names for UTF-8, whatever the person's locale says: libarchive converts the
/// names of entries from and into the thread's character set.
class ZipLocale
{
public:
#if defined(Q_OS_UNIX)
    ZipLocale()
        : m_locale(::newlocale(LC_CTYPE_MASK, utf8, nullptr))
        , m_before(m_locale != nullptr ? ::uselocale(m_locale) : nullptr)
    {}
    ~ZipLocale()
    {
        if (m_locale == nullptr)
            return;
        ::uselocale(m_before);
        ::freelocale(m_locale);
    }
#else
    ZipLocale() = default;
#endif
    Q_DISABLE_COPY_MOVE(ZipLocale)

#if defined(Q_OS_UNIX)
private:
#if defined(Q_OS_DARWIN)
    static constexpr const char* utf8 = "UTF-8";
#else
    static constexpr const char* utf8 = "C.UTF-8";
#endif
    locale_t m_locale;
    locale_t m_before;
#endif
};

} // namespace abissora
