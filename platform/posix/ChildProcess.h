#pragma once

#include "platform/posix/FileDescriptor.h"

#include <sys/types.h>

#include <string>
#include <variant>
#include <vector>

namespace corvellane {

struct Pipe {
    /// Does not block, so that a stream can be emptied without waiting for its end.
    FileDescriptor readEnd;
    FileDescriptor writeEnd;
};

/// Ends that are not open when there are none left to have.
Pipe makePipe();

/// The descriptors that become a child's standard streams.
struct StandardStreams {
    int input;
    int output;
    int errors;
};

/// A program to start: `words` holds its path and its arguments, `environment` all of its "NAME=value"s.
struct Invocation {
    std::vector<std::string> words;
    std::vector<std::string> environment;
};

/// The child's process id, or the error number when it cannot be started. Besides its streams the child inherits
/// nothing: no descriptor, default signals, "/" as working directory.
struct StartFailure {
    int error;
};
std::variant<pid_t, StartFailure> startChild(const Invocation& invocation, const StandardStreams& streams);

/// Waits for the child's end: its exit status, or 128 and the number of the signal that ended it; `statusUnknown` when
/// nobody can tell.
constexpr int statusUnknown = 255;
int exitStatusOf(pid_t child);

/// Of each stream of a child at most this many bytes are kept.
constexpr std::size_t mostKeptOfAStream = std::size_t{1} << 20U;

/// Appends what the stream holds now to `kept`, and closes it at its end. At most a few times what a pipe holds is
/// read, so that a process left in the background that never stops writing holds up nobody.
void drain(FileDescriptor& stream, std::string& kept);

} // namespace corvellane
