// SPDX-License-Identifier: MIT
#pragma once

namespace abissora {

/// What this process asks of the system at its start, and takes back for the processes that it starts.
namespace ProcessSetup {

/// Opens those of standard input, output and error that are closed on the null device. Otherwise the next file or
/// socket would get their numbers, and what is written for a reader would go there. To be called before anything is
/// opened.
void openStandardStreams();

/// A reader that went away, or a file that may not grow any further, is an error of the write from now on; otherwise it
/// ends the process.
void outliveFailedWrites();

/// For a process that is about to be started: what is ignored would stay ignored there. May be called after fork().
void restoreSignals();

} // namespace ProcessSetup

} // namespace abissora
