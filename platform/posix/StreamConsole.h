#pragma once

#include "platform/Console.h"

#include <unistd.h>

#include <cstdio>

namespace corvellane {

/// One of the process's standard streams, flushed after every print.
class StreamConsole : public Console {
public:
    explicit StreamConsole(std::FILE* stream)
        : stream_(stream)
    {
    }

    void print(std::string_view text) override
    {
        std::fwrite(text.data(), 1, text.size(), stream_);
        std::fputc('\n', stream_);
        std::fflush(stream_);
    }

private:
    std::FILE* stream_;
};

/// Whether a person reads what is written there.
inline bool isTerminal(std::FILE* stream)
{
    return isatty(fileno(stream)) == 1;
}

} // namespace corvellane
