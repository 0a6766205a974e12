// Reads any bytes as the command runner reads its requests; nothing is run.

#define main runnerMain
#include "helper/CommandRunner.cpp"
#undef main

#include <sys/mman.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const int file = memfd_create("requests", MFD_CLOEXEC);
    if (write(file, data, size) != static_cast<ssize_t>(size) || lseek(file, 0, SEEK_SET) != 0) {
        std::abort();
    }
    dup2(file, STDIN_FILENO);
    close(file);
    std::size_t taken = 0;
    for (auto command = readCommand(); command; command = readCommand()) {
        taken += command->size() + 4;
        if (command->size() > longestCommand || command->find('\0') != std::string::npos) {
            std::abort();
        }
    }
    if (taken > size) {
        std::abort();
    }
    return 0;
}
