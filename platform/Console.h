#pragma once

#include <string_view>

namespace corvellane {

/// Where diagnostics go. Main thread.
class Console {
public:
    virtual ~Console() = default;

    /// Writes the bytes of `text`, line feeds of its own included, then one line feed, as one print.
    virtual void print(std::string_view text) = 0;
};

} // namespace corvellane
