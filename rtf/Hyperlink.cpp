#include "rtf/Hyperlink.h"

namespace corvellane::rtf {
namespace {

constexpr std::string_view keyword = "HYPERLINK";
constexpr std::string_view spaces = " \t";

bool startsWithKeyword(std::string_view text)
{
    for (std::size_t index = 0; index < keyword.size(); ++index) {
        if (index == text.size() || (text[index] & ~0x20) != keyword[index]) {
            return false;
        }
    }
    return text.size() == keyword.size() || spaces.find(text[keyword.size()]) != std::string_view::npos
        || text[keyword.size()] == '"';
}

/// Takes an argument off the text. In quotes a backslash stands before a quote or another backslash.
std::string takeQuoted(std::string_view& text)
{
    std::string argument;
    std::size_t index = 1;
    for (; index < text.size() && text[index] != '"'; ++index) {
        const bool escaped
            = text[index] == '\\' && index + 1 < text.size() && (text[index + 1] == '"' || text[index + 1] == '\\');
        index += escaped ? 1 : 0;
        argument += text[index];
    }
    text.remove_prefix(index < text.size() ? index + 1 : text.size());
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

} // namespace

std::optional<std::string> hyperlinkTarget(std::string_view instruction)
{
    const std::size_t begin = instruction.find_first_not_of(spaces);
    if (begin == std::string_view::npos || !startsWithKeyword(instruction.substr(begin))) {
        return std::nullopt;
    }
    std::string_view rest = instruction.substr(begin + keyword.size());
    std::string address;
    std::string bookmark;
    while (rest.find_first_not_of(spaces) != std::string_view::npos) {
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

} // namespace corvellane::rtf
