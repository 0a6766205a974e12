// Reads any bytes as the command runner reads its requests, and as the installer reads its replies.

#include "helper/RunnerMessages.h"

#include <algorithm>
#include <cstdlib>
#include <functional>

namespace {

using namespace corvellane::runner;

/// Hands out the fuzzer's bytes, never more than there are.
class Input {
public:
    explicit Input(std::string_view bytes)
        : rest_(bytes)
    {
    }

    bool operator()(char* place, std::size_t size)
    {
        if (size > rest_.size()) {
            return false;
        }
        std::copy_n(rest_.data(), size, place);
        rest_.remove_prefix(size);
        return true;
    }

private:
    std::string_view rest_;
};

void expect(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    std::string written;
    const auto write = [&](std::string_view sent) { written += sent; };
    Input input(bytes);
    while (const auto command = readRequest(std::ref(input))) {
        expect(command->size() <= longestText && command->find('\0') == std::string::npos);
        writeText(*command, write);
    }
    expect(bytes.starts_with(written));
    written.clear();
    input = Input(bytes);
    while (const auto reply = readReply(std::ref(input))) {
        writeReply(*reply, write);
    }
    expect(bytes.starts_with(written));
    return 0;
}
