#include "platform/posix/ProcessSetup.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>

namespace corvellane {

void setUpProcess()
{
    std::signal(SIGCHLD, SIG_DFL);
    std::signal(SIGPIPE, SIG_IGN);
    int next = open("/dev/null", O_RDWR);
    while (next >= 0 && next <= STDERR_FILENO) {
        next = dup(next);
    }
    if (next >= 0) {
        close(next);
    }
}

} // namespace corvellane
