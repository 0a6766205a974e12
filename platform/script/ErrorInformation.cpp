#include "platform/script/ErrorInformation.h"

#include <string_view>

namespace corvellane::script {
namespace {

bool isPlain(std::string_view value)
{
    return !value.empty()
        && value.find_first_not_of("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz")
        == std::string_view::npos;
}

std::string quoted(std::string_view value)
{
    std::string text = "\"";
    for (const char character : value) {
        if (character == '"' || character == '\\') {
            text += '\\';
        }
        text += character == '\n' ? std::string("\\n") : std::string(1, character);
    }
    return text + '"';
}

std::string entry(std::string_view key, std::string_view value)
{
    std::string line = "    ";
    line += key;
    line += " = ";
    line += isPlain(value) ? std::string(value) : quoted(value);
    return line + ";\n";
}

} // namespace

std::string describeError(const LocatedFailure& error)
{
    const auto& [failure, range] = error;
    const std::string rangeText
        = "NSRange: {" + std::to_string(range.start) + ", " + std::to_string(range.length) + "}";
    return "{\n" + entry("NSAppleScriptErrorBriefMessage", failure.message)
        + entry("NSAppleScriptErrorMessage", failure.message)
        + entry("NSAppleScriptErrorNumber", std::to_string(failure.number))
        + entry("NSAppleScriptErrorRange", rangeText) + "}";
}

} // namespace corvellane::script
