// SPDX-License-Identifier: MIT
#pragma once

namespace abissora::exitStatus {

// What the program ends with; from 64 on as sysexits.h has them, so that 1 is an answer and no accident.
inline constexpr int done = 0;
/// What was asked about is there: something is due, something is damaged, rows would not be imported.
inline constexpr int found = 1;
/// The command line cannot be understood.
inline constexpr int usage = 64;
/// A file that was given does not hold what it should.
inline constexpr int badData = 65;
/// What was named does not exist or cannot be read.
inline constexpr int noInput = 66;
/// There is no screen.
inline constexpr int unavailable = 69;
/// A file cannot be written.
inline constexpr int cannotCreate = 73;
/// The register is in use by another process.
inline constexpr int tryAgain = 75;

} // namespace abissora::exitStatus
