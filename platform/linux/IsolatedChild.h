#pragma once

#include "platform/posix/ChildProcess.h"

namespace corvellane {

/// Starts a child that inherits nothing from this process but its streams: no other descriptor, however that was
/// opened, and "/" as working directory.
Expected<pid_t> startIsolatedChild(const Invocation& invocation, const StandardStreams& streams);

} // namespace corvellane
