#pragma once

#include <sys/types.h>

namespace corvellane {

/// Has polkit's agent for terminals ask for this process's passwords, on the terminal that the process was started
/// from, while this lives. Where there is none, or others have the terminal now, nobody asks.
class TerminalAgent {
public:
    /// Returns when the agent has made itself known to polkit, or cannot.
    TerminalAgent();
    TerminalAgent(const TerminalAgent&) = delete;
    TerminalAgent& operator=(const TerminalAgent&) = delete;
    ~TerminalAgent();

private:
    /// -1 for none.
    pid_t agent_ = -1;
};

} // namespace corvellane
