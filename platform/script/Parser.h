#pragma once

#include "platform/script/Syntax.h"
#include "platform/script/TokenStream.h"

#include <string_view>
#include <variant>

namespace corvellane {

/// Compiles the source text of a script. Key words and names do not distinguish capitals; blocks, commands and
/// parentheses nest up to 200 deep. Takes time in proportion to the text.
std::variant<SyntaxTree, SyntaxError> parseScript(std::string_view source);

} // namespace corvellane
