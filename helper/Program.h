#pragma once

#include "helper/RunnerMessages.h"

#include <vector>

namespace corvellane::runner {

/// What a reply says when nothing could be run.
constexpr int couldNotRun = 127;
Reply cannotRun(const char* reason);

/// Runs the program at `path` with these words, its own name the first, and this environment, and returns when it has
/// ended; what it left in the background is not waited for. It inherits the rights and the mode mask of the calling
/// thread; standard input is empty, "/" the working directory, no other descriptor is open and all signals are at their
/// defaults. Of each stream an excerpt is kept. When a signal ends it, the last line of the errors says so of
/// `command`, and the status is 128 and the signal's number.
Reply runProgram(const std::string& path, const std::vector<std::string>& words,
    const std::vector<std::string>& environment, std::string_view command);

} // namespace corvellane::runner
