#pragma once

#include "platform/script/Syntax.h"

#include <string_view>

namespace corvellane::script {

/// Compiles the source text of a script. Key words and names do not distinguish capitals; blocks, commands and
/// parentheses nest up to 200 deep. Takes time in proportion to the text.
Expected<SyntaxTree, LocatedFailure> parse(std::string_view source);

} // namespace corvellane::script
