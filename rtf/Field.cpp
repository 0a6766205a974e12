#include "rtf/Field.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace corvellane::rtf {
namespace {

constexpr std::string_view spaces = " \t";

/// Takes an argument off the text. In quotes a backslash stands before a quote or another backslash.
std::string takeQuoted(std::string_view& text)
{
    const auto isPlain = [](char byte) { return byte != '"' && byte != '\\'; };
    std::string argument;
    text.remove_prefix(1);
    while (!text.empty() && text[0] != '"') {
        const bool escaped = text.starts_with("\\\"") || text.starts_with("\\\\");
        text.remove_prefix(escaped ? 1 : 0);
        const auto* const end = std::find_if_not(text.begin() + 1, text.end(), isPlain);
        argument.append(text.begin(), end);
        text.remove_prefix(static_cast<std::size_t>(end - text.begin()));
    }
    text.remove_prefix(text.empty() ? 0 : 1);
    return argument;
}

std::string takeArgument(std::string_view& text)
{
    const std::size_t begin = text.find_first_not_of(spaces);
    text.remove_prefix(begin == std::string_view::npos ? text.size() : begin);
    if (text.starts_with('"')) {
        return takeQuoted(text);
    }
    const std::string_view argument = text.substr(0, text.find_first_of(spaces));
    text.remove_prefix(argument.size());
    return std::string(argument);
}

bool hasArgument(std::string_view text)
{
    return text.find_first_not_of(spaces) != std::string_view::npos;
}

/// Takes the field's name off, in capitals.
std::string takeKeyword(std::string_view& text)
{
    const std::size_t begin = std::min(text.find_first_not_of(spaces), text.size());
    const std::size_t end = std::min(text.find_first_of(" \t\"\\", begin), text.size());
    std::string keyword(text.substr(begin, end - begin));
    std::ranges::transform(keyword, keyword.begin(),
        [](char letter) { return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter; });
    text.remove_prefix(end);
    return keyword;
}

std::optional<std::string> linkOf(std::string_view rest)
{
    std::string address;
    std::string bookmark;
    while (hasArgument(rest)) {
        const bool quoted = rest[rest.find_first_not_of(spaces)] == '"';
        const std::string argument = takeArgument(rest);
        if (quoted || !argument.starts_with('\\')) {
            address = address.empty() ? argument : address;
        } else if (argument == "\\l") {
            bookmark = '#';
            bookmark += takeArgument(rest);
        } else if (argument == "\\o" || argument == "\\t") {
            takeArgument(rest);
        }
    }
    const std::string target = address + bookmark;
    return target.empty() ? std::nullopt : std::optional(target);
}

std::uint32_t numberOf(std::string_view digits)
{
    const bool isHexadecimal = digits.starts_with("0x") || digits.starts_with("0X");
    digits.remove_prefix(isHexadecimal ? 2 : 0);
    std::uint32_t number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number, isHexadecimal ? 16 : 10);
    return number;
}

std::optional<FieldSymbol> symbolOf(std::string_view rest)
{
    FieldSymbol symbol{.font = {}};
    while (hasArgument(rest)) {
        const std::string argument = takeArgument(rest);
        if (argument == "\\f") {
            symbol.font = takeArgument(rest);
        } else if (argument == "\\s") {
            takeArgument(rest);
        } else if (argument == "\\u") {
            symbol.isUnicode = true;
        } else if (symbol.number == 0) {
            symbol.number = numberOf(argument);
        }
    }
    return symbol.number != 0 ? std::optional(symbol) : std::nullopt;
}

} // namespace

Field fieldOf(std::string_view instruction)
{
    static constexpr std::array<std::string_view, 3> pageNumbers{"PAGE", "NUMPAGES", "SECTIONPAGES"};
    std::string_view rest = instruction;
    const std::string keyword = takeKeyword(rest);
    Field field;
    if (keyword == "HYPERLINK") {
        field.link = linkOf(rest);
    } else if (keyword == "SYMBOL") {
        field.symbol = symbolOf(rest);
    }
    field.isPageNumber = std::ranges::find(pageNumbers, keyword) != pageNumbers.end();
    return field;
}

} // namespace corvellane::rtf
