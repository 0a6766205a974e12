#include "helper/Turn.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>

namespace corvellane::runner {

void waitForTurn(const std::string& name)
{
    // Open until the process ends.
    const int file = open(("/run/" + name + ".lock").c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600);
    while (file >= 0 && flock(file, LOCK_EX) != 0 && errno == EINTR) { }
}

} // namespace corvellane::runner
