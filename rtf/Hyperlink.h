#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace corvellane::rtf {

/// The target that a field's instruction leads to: HYPERLINK "address" \l "bookmark" gives address#bookmark. Absent
/// for any other field.
std::optional<std::string> hyperlinkTarget(std::string_view instruction);

} // namespace corvellane::rtf
