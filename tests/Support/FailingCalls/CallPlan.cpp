// SPDX-License-Identifier: MIT
#include "CallPlan.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sstream>
#include <sys/syscall.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace abissora::test::calls {

namespace {

struct Step
{
    std::string call;
    unsigned first = 1;
    bool andAllAfter = false;
    Decision decision;
    bool runsHook = false;
    unsigned count = 0;
};

struct State
{
    std::vector<Step> steps;
    std::string folder;
    std::string log;
    unsigned changes = 0;
    bool isActive = false;
    bool isBusy = false; ///< in the hook or in the counting itself
    void (*hook)(void*) = nullptr;
    void* hookData = nullptr;
};

State& state()
{
    static auto* const state = new State; // calls are made until the very end of the process
    return *state;
}

/// Calls are counted on any thread.
class Turn
{
public:
    Turn()
    {
        while (lock().test_and_set(std::memory_order_acquire)) {
        }
    }
    ~Turn() { lock().clear(std::memory_order_release); }
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;

private:
    static std::atomic_flag& lock()
    {
        static std::atomic_flag flag = ATOMIC_FLAG_INIT;
        return flag;
    }
};

int errorNamed(const std::string& name)
{
    static const std::array<std::pair<const char*, int>, 16> errors{{{"EACCES", EACCES},
                                                                     {"EAGAIN", EAGAIN},
                                                                     {"EDQUOT", EDQUOT},
                                                                     {"EEXIST", EEXIST},
                                                                     {"EFBIG", EFBIG},
                                                                     {"EINTR", EINTR},
                                                                     {"EINVAL", EINVAL},
                                                                     {"EIO", EIO},
                                                                     {"EMFILE", EMFILE},
                                                                     {"ENOLCK", ENOLCK},
                                                                     {"ENOSPC", ENOSPC},
                                                                     {"ENOSYS", ENOSYS},
                                                                     {"ENOTSUP", ENOTSUP},
                                                                     {"EPERM", EPERM},
                                                                     {"EROFS", EROFS},
                                                                     {"ESTALE", ESTALE}}};
    for (const auto& [known, number] : errors) {
        if (name == known)
            return number;
    }
    return 0;
}

bool readAction(const std::string& text, Step& step)
{
    static const std::array<std::pair<const char*, Action>, 4> actions{{{"short", Action::Short},
                                                                        {"zero", Action::Zero},
                                                                        {"kill-before", Action::KillBefore},
                                                                        {"kill-after", Action::KillAfter}}};
    for (const auto& [known, action] : actions) {
        if (text == known) {
            step.decision.action = action;
            return true;
        }
    }
    step.runsHook = text == "hook";
    if (step.runsHook)
        return true;
    step.decision = {Action::Fail, errorNamed(text)};
    return step.decision.error != 0;
}

bool readStep(const std::string& text, Step& step)
{
    const auto at = text.find('@');
    const auto equals = text.find('=');
    if (at == std::string::npos || equals == std::string::npos || equals < at)
        return false;
    step.call = text.substr(0, at);
    char* end = nullptr;
    step.first = static_cast<unsigned>(std::strtoul(text.c_str() + at + 1, &end, 10));
    step.andAllAfter = *end == '+';
    return step.first > 0 && end + (step.andAllAfter ? 1 : 0) == text.c_str() + equals &&
           readAction(text.substr(equals + 1), step);
}

std::string placeOf(int descriptor)
{
    std::array<char, PATH_MAX> place{};
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    const ssize_t size = ::readlink(link.c_str(), place.data(), place.size());
    return size > 0 ? std::string(place.data(), static_cast<std::size_t>(size)) : std::string();
}

std::string currentFolder()
{
    std::array<char, PATH_MAX> folder{};
    return ::getcwd(folder.data(), folder.size()) != nullptr ? folder.data() : "";
}

std::string placeOf(const Call& call)
{
    if (call.path == nullptr)
        return placeOf(call.descriptor);
    std::string place = call.path;
    if (place.empty() || place.front() != '/')
        place = (call.descriptor == AT_FDCWD ? currentFolder() : placeOf(call.descriptor)) + '/' + place;
    return std::filesystem::path(place).lexically_normal().string();
}

bool isUnder(const std::string& place, const std::string& folder)
{
    return folder.empty() || place == folder || place.compare(0, folder.size() + 1, folder + '/') == 0;
}

/// Without the calls that are counted here.
void append(const std::string& file, const std::string& line)
{
    const auto log = ::syscall(SYS_openat, AT_FDCWD, file.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    ::syscall(SYS_write, log, line.data(), line.size());
    ::syscall(SYS_close, log);
}

/// A plan may come with the environment, for a program that knows nothing of it.
const bool isFromEnvironment = [] {
    const auto value = [](const char* name) {
        const char* const text = std::getenv(name);
        return std::string(text != nullptr ? text : "");
    };
    const std::string plan = value("ABISSORA_FAILING_CALLS");
    const std::string log = value("ABISSORA_FAILING_CALLS_LOG");
    if (!begin(plan, value("ABISSORA_FAILING_CALLS_UNDER"))) {
        append("/dev/stderr", "ABISSORA_FAILING_CALLS is not understood: " + plan + "\n");
        ::_exit(125);
    }
    state().log = log;
    state().isActive = !plan.empty() || !log.empty();
    return state().isActive;
}();

} // namespace

bool begin(const std::string& plan, const std::string& folder)
{
    std::vector<Step> steps;
    std::istringstream words(plan);
    bool isUnderstood = true;
    for (std::string word; words >> word;) {
        Step step;
        isUnderstood = readStep(word, step) && isUnderstood;
        steps.push_back(std::move(step));
    }
    const Turn turn;
    State& now = state();
    now.steps = isUnderstood ? std::move(steps) : std::vector<Step>();
    now.folder = folder;
    now.changes = 0;
    now.isActive = !now.steps.empty() || !now.log.empty();
    return isUnderstood;
}

unsigned changes()
{
    const Turn turn;
    return state().changes;
}

void setHook(void (*hook)(void*), void* data)
{
    const Turn turn;
    state().hook = hook;
    state().hookData = data;
}

Decision decide(const Call& call)
{
    State& now = state();
    Decision decision;
    bool runsHook = false;
    {
        const Turn turn;
        if (!now.isActive || now.isBusy)
            return decision;
        const int before = errno;
        const std::string place = placeOf(call);
        errno = before;
        if (!isUnder(place, now.folder))
            return decision;
        if (call.changes && ++now.changes > 0 && !now.log.empty())
            append(now.log, std::to_string(now.changes) + ' ' + call.name + ' ' + place + '\n');
        for (Step& step : now.steps) {
            if (step.call != call.name && !(step.call == "change" && call.changes))
                continue;
            ++step.count;
            if (step.count != step.first && !(step.andAllAfter && step.count > step.first))
                continue;
            if (step.runsHook)
                runsHook = true;
            else
                decision = step.decision;
        }
        now.isBusy = runsHook;
    }
    if (runsHook) {
        now.hook(now.hookData);
        const Turn turn;
        now.isBusy = false;
    }
    return decision;
}

void killThisProcess()
{
    while (true)
        ::kill(::getpid(), SIGKILL);
}

} // namespace abissora::test::calls
