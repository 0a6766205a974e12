#pragma once

#include <string>
#include <string_view>

namespace corvellane::rtf {

class Writer;

/// Carries out the RTF in `bytes` on the writer, token by token, up to the end of the outer group; false when that
/// never closes. `own`: where the bytes stand, at their end, if they may be given back while they are read; else null.
bool interpret(std::string_view bytes, std::string* own, Writer& writer);

} // namespace corvellane::rtf
