#pragma once

#include <string>

namespace corvellane {

/// `command`, written for the BSD tools, in a form that means the same to `/bin/sh` with the GNU tools: `ln -h` takes
/// a link at the target for what it is (GNU: `-n`); `cp -R "X/" "Y/"` copies what is in X, not X itself; `echo`
/// interprets backslashes in every shell, as XSI asks; new files get the mode mask 022.
std::string inBsdDialect(const std::string& command);

} // namespace corvellane
