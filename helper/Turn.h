#pragma once

#include <string>

namespace corvellane::runner {

/// Returns when no other process has the turn of that name; it is this one's until it ends, however it does. For root:
/// others cannot open what it is told by, and so hold nobody up. Where there is no "/run" nobody waits.
void waitForTurn(const std::string& name);

} // namespace corvellane::runner
