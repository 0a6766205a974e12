#pragma once

#include "platform/Console.h"

#include <cstdio>

namespace corvellane {

/// The process's standard output, flushed after every print.
class StandardOutput : public Console {
public:
    void print(std::string_view text) override
    {
        std::fwrite(text.data(), 1, text.size(), stdout);
        std::fputc('\n', stdout);
        std::fflush(stdout);
    }
};

} // namespace corvellane
