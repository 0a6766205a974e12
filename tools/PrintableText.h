#pragma once

#include <string>
#include <string_view>

namespace corvellane {

/// `bytes` as one line of UTF-8: control characters, backslashes and bytes that are not UTF-8 become `\n`, `\r`, `\t`,
/// `\\` or `\xHH`.
std::string printable(std::string_view bytes);

/// The same between quotation marks.
std::string quotedPrintable(std::string_view bytes);

} // namespace corvellane
