// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>
#include <csignal>
#include <sys/resource.h>

namespace abissora::test {

/// While it lives no file of this process grows beyond `bytes`: writes fail in the middle, as on a full disk, with
/// "File too large". Report nothing meanwhile; the test's own output may be a file.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY_MOVE(FileSizeLimit)

private:
    using Handler = void (*)(int);

    Handler m_handler;
    rlimit m_before{};
};

} // namespace abissora::test
