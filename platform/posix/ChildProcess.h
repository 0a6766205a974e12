#pragma once

#include "base/Expected.h"
#include "platform/posix/FileDescriptor.h"

#include <spawn.h>
#include <sys/types.h>

#include <string>
#include <vector>

namespace corvellane {

struct Pipe {
    FileDescriptor readEnd;
    FileDescriptor writeEnd;
};

/// Ends that are not open when there are none left to have. No program that is started later inherits them.
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

/// What a system can do in the child before the program starts, beyond what POSIX has.
using SpawnExtension = void (*)(posix_spawn_file_actions_t& actions);

/// The child's process id, or why it cannot be started. Besides its streams the child inherits the working directory
/// and what has been opened to be inherited; all signals are at their defaults.
Expected<pid_t> startChild(
    const Invocation& invocation, const StandardStreams& streams, SpawnExtension extension = nullptr);

/// Waits for the child's end: its exit status, or 128 and the number of the signal that ended it; `statusUnknown` when
/// nobody can tell.
constexpr int statusUnknown = 255;
int exitStatusOf(pid_t child);

/// Of each stream of a child at most this many bytes are kept.
constexpr std::size_t mostKeptOfAStream = std::size_t{1} << 20U;

/// Appends what the stream holds now to `kept`, and closes it at its end; waits for nothing. At most a few times what a
/// pipe holds is read, so that a process left in the background that never stops writing holds up nobody.
void drain(FileDescriptor& stream, std::string& kept);

} // namespace corvellane
