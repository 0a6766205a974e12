#include "platform/linux/IsolatedChild.h"

namespace corvellane {

Expected<pid_t> startIsolatedChild(const Invocation& invocation, const StandardStreams& streams)
{
    return startChild(invocation, streams, [](posix_spawn_file_actions_t& actions) {
        posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
        posix_spawn_file_actions_addchdir_np(&actions, "/");
    });
}

} // namespace corvellane
