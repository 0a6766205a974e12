#pragma once

#include <optional>
#include <string>

namespace corvellane {

/// The absolute path of the running program, links resolved; absent when the system does not say.
std::optional<std::string> runningExecutable();

} // namespace corvellane
