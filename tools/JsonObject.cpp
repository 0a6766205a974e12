#include "tools/JsonObject.h"

#include <array>
#include <cstdio>

namespace corvellane {
namespace {

std::string escaped(char letter)
{
    switch (letter) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\n':
        return "\\n";
    case '\t':
        return "\\t";
    default:
        std::array<char, 8> code{};
        std::snprintf(code.data(), code.size(), "\\u%04x", static_cast<unsigned>(static_cast<unsigned char>(letter)));
        return code.data();
    }
}

std::string quoted(std::string_view value)
{
    std::string json = "\"";
    for (const char letter : value) {
        const bool plain = static_cast<unsigned char>(letter) >= 0x20 && letter != '"' && letter != '\\';
        plain ? json.push_back(letter) : void(json += escaped(letter));
    }
    return json + '"';
}

} // namespace

void JsonObject::addText(std::string_view key, std::string_view value)
{
    addJson(key, quoted(value));
}

void JsonObject::addName(std::string_view key, std::string_view value)
{
    if (!value.empty()) {
        addText(key, value);
    }
}

void JsonObject::addFlag(std::string_view key, bool value)
{
    addJson(key, value ? "true" : "");
}

void JsonObject::addNumber(std::string_view key, double value)
{
    std::array<char, 64> number{};
    const int length = std::snprintf(number.data(), number.size(), "%.6f", value);
    std::string_view digits(number.data(), static_cast<std::size_t>(length));
    digits = digits.substr(0, digits.find_last_not_of('0') + 1);
    digits = digits.substr(0, digits.find_last_not_of('.') + 1);
    addJson(key, digits == "0" || digits == "-0" ? "" : digits);
}

void JsonObject::addJson(std::string_view key, std::string_view json)
{
    if (!json.empty()) {
        body_ += (body_.empty() ? "{" : ", ") + quoted(key) + ": ";
        body_ += json;
    }
}

} // namespace corvellane
