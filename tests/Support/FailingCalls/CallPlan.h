// SPDX-License-Identifier: MIT
#pragma once

#include <fcntl.h>
#include <string>

/// Which calls of the system fail, and how: what a plan says, and the counting of the calls.
///
/// A plan is a list of steps "CALL@N=ACTION", separated by spaces:
///
///   CALL     open, create (an open that may create), read, write, truncate, fsync, chmod, rename, renameat2, link,
///            unlink, mkdir, rmdir, flock; or "change": any of them that changes the disk or makes a change last
///   N        the N-th such call from 1 on, since the plan began; "N+" for that one and all after it
///   ACTION   an error, such as ENOSPC, EIO, EACCES, EINTR; "short": half of the bytes are written or read; "zero":
///            none are, without an error; "kill-before", "kill-after": the process is killed; "hook": the hook runs
///            first
///
/// Only calls on what lies under a folder count, when one is given.
///
/// A program that is preloaded with the library has plan and folder from ABISSORA_FAILING_CALLS and
/// ABISSORA_FAILING_CALLS_UNDER; it appends each call that changes the disk, with its number, to the file
/// ABISSORA_FAILING_CALLS_LOG. Every process counts for itself.
namespace abissora::test::calls {

enum class Action { None, Fail, Short, Zero, KillBefore, KillAfter };

struct Decision
{
    Action action = Action::None;
    int error = 0; ///< of Fail
};

/// What a call is known by. Without a path it is one on a descriptor.
struct Call
{
    const char* name = nullptr;
    bool changes = true;
    const char* path = nullptr;
    int descriptor = AT_FDCWD; ///< beside a path: the folder where a relative one begins
};

/// Begins a plan, which replaces another; an empty one is none. False when it is not understood; then there is none.
bool begin(const std::string& plan, const std::string& folder);
/// How many calls changed the disk since the plan began.
[[nodiscard]] unsigned changes();
/// Runs where a step says so, once for each; its own calls are not counted.
void setHook(void (*hook)(void*), void* data);

/// Counts a call and tells what becomes of it. Runs the hook.
[[nodiscard]] Decision decide(const Call& call);
[[noreturn]] void killThisProcess();

} // namespace abissora::test::calls
