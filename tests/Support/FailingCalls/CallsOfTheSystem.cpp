// SPDX-License-Identifier: MIT
// In the place of the system's own, for every caller in the process: linked into a test program, or preloaded into the
// program itself.
#include "CallPlan.h"

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using abissora::test::calls::Action;
using abissora::test::calls::Call;
using abissora::test::calls::Decision;

/// The system's function behind one of these.
template <typename Function>
Function* next(Function* /*own*/, const char* name)
{
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}
#define NEXT(name)                                                                                                     \
    ([] {                                                                                                              \
        static auto* const found = next(&::name, #name);                                                               \
        return found;                                                                                                  \
    }())

template <typename Perform>
auto perform(const Decision& decision, Perform real) -> decltype(real())
{
    if (decision.action == Action::KillBefore)
        abissora::test::calls::killThisProcess();
    if (decision.action == Action::Fail) {
        errno = decision.error;
        return -1;
    }
    const auto result = real();
    if (decision.action == Action::KillAfter)
        abissora::test::calls::killThisProcess();
    return result;
}

template <typename Perform>
auto perform(const Call& call, Perform real) -> decltype(real())
{
    return perform(abissora::test::calls::decide(call), real);
}

/// Of a call that passes bytes.
template <typename Perform>
ssize_t pass(const Call& call, std::size_t size, Perform real)
{
    const Decision decision = abissora::test::calls::decide(call);
    if (decision.action == Action::Zero)
        return 0;
    return perform(decision, [&] { return real(decision.action == Action::Short ? (size + 1) / 2 : size); });
}

Call opening(const char* path, int flags, int folder = AT_FDCWD)
{
    const bool creates = (flags & (O_CREAT | O_TRUNC)) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
    return {creates ? "create" : "open", creates, path, folder};
}

mode_t modeOf(int flags, va_list rest)
{
    return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE ? va_arg(rest, mode_t) : mode_t{0};
}

} // namespace

#define TAKE_MODE(flags)                                                                                               \
    va_list rest;                                                                                                      \
    va_start(rest, flags);                                                                                             \
    const mode_t mode = modeOf(flags, rest);                                                                           \
    va_end(rest)

extern "C" {

int open(const char* path, int flags, ...)
{
    TAKE_MODE(flags);
    return perform(opening(path, flags), [&] { return NEXT(open)(path, flags, mode); });
}

int open64(const char* path, int flags, ...)
{
    TAKE_MODE(flags);
    return perform(opening(path, flags), [&] { return NEXT(open64)(path, flags, mode); });
}

int openat(int folder, const char* path, int flags, ...)
{
    TAKE_MODE(flags);
    return perform(opening(path, flags, folder), [&] { return NEXT(openat)(folder, path, flags, mode); });
}

int openat64(int folder, const char* path, int flags, ...)
{
    TAKE_MODE(flags);
    return perform(opening(path, flags, folder), [&] { return NEXT(openat64)(folder, path, flags, mode); });
}

ssize_t read(int file, void* bytes, std::size_t size)
{
    return pass({"read", false, nullptr, file}, size, [&](std::size_t part) { return NEXT(read)(file, bytes, part); });
}

ssize_t write(int file, const void* bytes, std::size_t size)
{
    return pass({"write", true, nullptr, file}, size, [&](std::size_t part) { return NEXT(write)(file, bytes, part); });
}

int ftruncate(int file, off_t size) noexcept
{
    return perform(Call{"truncate", true, nullptr, file}, [&] { return NEXT(ftruncate)(file, size); });
}

int ftruncate64(int file, off64_t size) noexcept
{
    return perform(Call{"truncate", true, nullptr, file}, [&] { return NEXT(ftruncate64)(file, size); });
}

int fsync(int file)
{
    return perform(Call{"fsync", true, nullptr, file}, [&] { return NEXT(fsync)(file); });
}

int fdatasync(int file)
{
    return perform(Call{"fsync", true, nullptr, file}, [&] { return NEXT(fdatasync)(file); });
}

int chmod(const char* path, mode_t mode) noexcept
{
    return perform(Call{"chmod", true, path}, [&] { return NEXT(chmod)(path, mode); });
}

int fchmod(int file, mode_t mode) noexcept
{
    return perform(Call{"chmod", true, nullptr, file}, [&] { return NEXT(fchmod)(file, mode); });
}

int rename(const char* source, const char* target) noexcept
{
    return perform(Call{"rename", true, target}, [&] { return NEXT(rename)(source, target); });
}

int renameat(int from, const char* source, int to, const char* target) noexcept
{
    return perform(Call{"rename", true, target, to}, [&] { return NEXT(renameat)(from, source, to, target); });
}

int renameat2(int from, const char* source, int to, const char* target, unsigned flags) noexcept
{
    return perform(Call{"renameat2", true, target, to},
                   [&] { return NEXT(renameat2)(from, source, to, target, flags); });
}

int link(const char* source, const char* target) noexcept
{
    return perform(Call{"link", true, target}, [&] { return NEXT(link)(source, target); });
}

int linkat(int from, const char* source, int to, const char* target, int flags) noexcept
{
    return perform(Call{"link", true, target, to}, [&] { return NEXT(linkat)(from, source, to, target, flags); });
}

int unlink(const char* path) noexcept
{
    return perform(Call{"unlink", true, path}, [&] { return NEXT(unlink)(path); });
}

int unlinkat(int folder, const char* path, int flags) noexcept
{
    return perform(Call{(flags & AT_REMOVEDIR) != 0 ? "rmdir" : "unlink", true, path, folder},
                   [&] { return NEXT(unlinkat)(folder, path, flags); });
}

int remove(const char* path) noexcept
{
    return perform(Call{"unlink", true, path}, [&] { return NEXT(remove)(path); });
}

int mkdir(const char* path, mode_t mode) noexcept
{
    return perform(Call{"mkdir", true, path}, [&] { return NEXT(mkdir)(path, mode); });
}

int mkdirat(int folder, const char* path, mode_t mode) noexcept
{
    return perform(Call{"mkdir", true, path, folder}, [&] { return NEXT(mkdirat)(folder, path, mode); });
}

int rmdir(const char* path) noexcept
{
    return perform(Call{"rmdir", true, path}, [&] { return NEXT(rmdir)(path); });
}

int flock(int file, int operation) noexcept
{
    return perform(Call{"flock", false, nullptr, file}, [&] { return NEXT(flock)(file, operation); });
}

} // extern "C"
