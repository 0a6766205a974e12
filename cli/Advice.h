#pragma once

#include <string>

namespace corvellane {

/// What a failed installation or removal says, in one line; what to do is added where it says only what was in the way,
/// as the tools do.
std::string withAdvice(std::string words);

} // namespace corvellane
