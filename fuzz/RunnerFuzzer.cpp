// Reads any bytes as the command runner reads its requests; nothing is run.

#define main runnerMain
#include "helper/CommandRunner.cpp"
#undef main

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FILE* const input = fmemopen(const_cast<std::uint8_t*>(data), size, "r");
    if (input == nullptr) {
        std::abort();
    }
    stdin = input;
    std::size_t taken = 0;
    for (auto command = readCommand(); command; command = readCommand()) {
        taken += command->size() + 4;
        if (command->size() > longestCommand || command->find('\0') != std::string::npos) {
            std::abort();
        }
    }
    std::fclose(input);
    if (taken > size) {
        std::abort();
    }
    return 0;
}
