#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace corvellane::rtf {

/// A character that a SYMBOL field names by its number in a font or a code page.
struct FieldSymbol {
    std::uint32_t number = 0;
    /// Empty for none.
    std::string font;
    /// The number is Unicode's.
    bool isUnicode = false;
};

/// What a field does here.
struct Field {
    /// Where its result leads to: an address, "#" and a bookmark, or both together.
    std::optional<std::string> link;
    std::optional<FieldSymbol> symbol;
    /// The result is the number of a page, of which there are none here.
    bool isPageNumber = false;
};

/// What the instruction of a field says (HYPERLINK, SYMBOL, PAGE and their kind); nothing for all others.
Field fieldOf(std::string_view instruction);

} // namespace corvellane::rtf
