#include "pack/Description.h"

#include <toml++/toml.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <regex>
#include <sstream>
#include <utility>

namespace corvellane::pack {
namespace {

struct Key {
    const char* name;
    std::string Description::* field;
    /// What the value must look like, and that in words.
    const char* form;
    const char* words;
};

constexpr auto oneLine = R"([^\x00-\x1f\x7f]+)";
constexpr std::array<Key, 7> keys{{
    {"name", &Description::name, oneLine, "one line of text"},
    {"identifier", &Description::identifier, R"([A-Za-z][A-Za-z0-9]*(\.[A-Za-z][A-Za-z0-9]*){2,})",
        "at least three names of letters and digits with dots between them, like com.example.GrainInstaller"},
    {"version", &Description::version, R"([0-9][A-Za-z0-9.+~]*)",
        "a digit and then letters, digits, “.”, “+” or “~”, like 1.4.2"},
    {"publisher", &Description::publisher, oneLine, "one line of text"},
    {"contact", &Description::contact, R"([^\x00-\x1f\x7f<>]+ <[^\x00-\x20\x7f<>@]+@[^\x00-\x20\x7f<>@]+>)",
        "a name and an address, like Example <help@example.com>"},
    {"homepage", &Description::homepage, R"(https?://[^\x00-\x20\x7f"<>]+)", "an address that begins with https://"},
    {"notes", &Description::notes, R"([^\x00-\x09\x0b-\x1f\x7f]+)", "text"},
}};

std::string at(const toml::source_region& place, const std::string& problem)
{
    std::ostringstream line;
    line << "installer.toml:" << place.begin.line << ": " << problem;
    return line.str();
}

const Key* keyNamed(std::string_view name)
{
    const auto* const found = std::ranges::find(keys, name, &Key::name);
    return found == keys.end() ? nullptr : found;
}

void readEntry(std::string_view name, const toml::node& value, DescriptionReading& reading)
{
    const std::string quoted = "“" + std::string(name) + "”";
    const Key* const key = keyNamed(name);
    if (key == nullptr) {
        reading.problems.push_back(at(value.source(), "there is no key " + quoted));
    } else if (const auto* const text = value.as_string();
        text == nullptr || !std::regex_match(text->get(), std::regex(key->form))) {
        reading.problems.push_back(at(value.source(), quoted + " must be " + key->words));
    } else {
        reading.description.*key->field = text->get();
    }
}

/// For what is neither given nor wrong.
void findMissing(const toml::table& table, DescriptionReading& reading)
{
    for (const Key& key : keys) {
        if (!table.contains(key.name) && (reading.description.*key.field).empty()) {
            reading.problems.push_back(std::string("installer.toml: “") + key.name + "” is missing: " + key.words);
        }
    }
}

} // namespace

std::string Description::packageName() const
{
    std::string result = identifier;
    std::ranges::transform(
        result, result.begin(), [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return result;
}

DescriptionReading readDescription(std::string_view text, const std::string& version)
{
    DescriptionReading reading;
    try {
        const toml::table table = toml::parse(text);
        for (const auto& [name, value] : table) {
            readEntry(name.str(), value, reading);
        }
        if (!version.empty()) {
            const toml::value<std::string> given(version);
            readEntry("version", given, reading);
        }
        findMissing(table, reading);
    } catch (const toml::parse_error& error) {
        reading.problems.push_back(at(error.source(), std::string(error.description())));
    }
    return reading;
}

} // namespace corvellane::pack
