// SPDX-License-Identifier: MIT
#include "QuitSignals.h"

#ifdef Q_OS_UNIX
#include "PosixFile.h"

#include <QSocketNotifier>
#include <algorithm>
#include <array>
#include <atomic>
#include <csignal>
#include <optional>
#endif

namespace abissora {

#ifdef Q_OS_UNIX

namespace {

constexpr std::array endingSignals{SIGHUP, SIGINT, SIGTERM};

/// The end of the pipe that the handler writes to.
std::atomic<int> handlersEnd = -1;
static_assert(std::atomic<int>::is_always_lock_free); // else no handler might read it

extern "C" void tellOfTheEnd(int /*signal*/)
{
    const int error = errno;
    for (const int number : {SIGINT, SIGTERM}) {
        struct sigaction action
        {};
        if (::sigaction(number, nullptr, &action) == 0 && action.sa_handler == tellOfTheEnd) {
            action.sa_handler = SIG_DFL;
            ::sigaction(number, &action, nullptr);
        }
    }
    // A full pipe has been told.
    static_cast<void>(::write(handlersEnd, "", 1) == 1);
    errno = error;
}

} // namespace

class QuitSignals::Watch
{
public:
    explicit Watch(std::function<void()> quit)
        : m_quit(std::move(quit))
    {
        if (!openPipe())
            return; // the signals do what they always did
        m_notifier.emplace(m_ends[0], QSocketNotifier::Read);
        QObject::connect(&*m_notifier, &QSocketNotifier::activated, &*m_notifier, [this] {
            m_notifier->setEnabled(false);
            m_quit();
        });
        handlersEnd = m_ends[1];
        struct sigaction action
        {};
        action.sa_handler = tellOfTheEnd;
        action.sa_flags = SA_RESTART;
        for (std::size_t i = 0; i < endingSignals.size(); ++i) {
            struct sigaction& before = m_before.at(i);
            if (::sigaction(endingSignals.at(i), nullptr, &before) == 0 && before.sa_handler != SIG_IGN)
                ::sigaction(endingSignals.at(i), &action, nullptr);
        }
    }
    ~Watch()
    {
        if (m_notifier) {
            for (std::size_t i = 0; i < endingSignals.size(); ++i)
                ::sigaction(endingSignals.at(i), &m_before.at(i), nullptr);
        }
        handlersEnd = -1;
        m_notifier.reset();
        for (const int end : m_ends) {
            if (end >= 0)
                ::close(end);
        }
    }
    Q_DISABLE_COPY_MOVE(Watch)

private:
    [[nodiscard]] bool openPipe()
    {
        if (::pipe(m_ends.data()) != 0)
            return false;
        return std::ranges::all_of(m_ends, [](int end) {
            return ::fcntl(end, F_SETFD, FD_CLOEXEC) == 0 && ::fcntl(end, F_SETFL, O_NONBLOCK) == 0;
        });
    }

    std::function<void()> m_quit;
    std::array<int, 2> m_ends{-1, -1};
    std::array<struct sigaction, endingSignals.size()> m_before{};
    std::optional<QSocketNotifier> m_notifier;
};

#else

class QuitSignals::Watch
{
public:
    explicit Watch(const std::function<void()>& /*quit*/) {}
};

#endif

QuitSignals::QuitSignals(std::function<void()> quit)
    : m_watch(std::make_unique<Watch>(std::move(quit)))
{}

QuitSignals::~QuitSignals() = default;

} // namespace abissora
