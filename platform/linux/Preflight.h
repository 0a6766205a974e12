#pragma once

#include "base/Expected.h"
#include "helper/Execution.h"

#include <optional>
#include <string>
#include <vector>

namespace corvellane {

/// Why the commands of an installation cannot all be carried out, as far as that can be told beforehand,
/// without their rights: a command or path that is none of an installation, a product that is missing, cannot be read
/// or could be changed by others, a home that is not there or not the user's to write, too little room. Absent when
/// nothing is in the way. Empty commands are passed over. Looks at all that will be copied, and changes nothing.
std::optional<Failure> whyNotInstallable(const std::vector<std::string>& commands, const runner::Site& site);

} // namespace corvellane
