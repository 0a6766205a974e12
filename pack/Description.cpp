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
    /// In bytes: more than anybody writes, and not too much for a file's name or for the matching.
    std::size_t longest;
    /// What the value must look like, and that in words.
    const char* form;
    const char* words;
};

constexpr auto oneLine = R"([^\x00-\x1f\x7f]+)";
constexpr std::array<Key, 7> keys{{
    {"name", &Description::name, 200, oneLine, "one line of text"},
    // The domain in small letters, as AppStream has it.
    {"identifier", &Description::identifier, 100,
        R"(([a-z][a-z0-9]*\.){2}[A-Za-z][A-Za-z0-9]*(\.[A-Za-z][A-Za-z0-9]*)*)",
        "a domain in small letters, and names of letters and digits with dots between them, like "
        "com.example.GrainInstaller"},
    {"version", &Description::version, 50, R"([0-9][A-Za-z0-9.+~]*)",
        "a digit and then letters, digits, “.”, “+” or “~”, like 1.4.2 or 2.0~beta1"},
    {"publisher", &Description::publisher, 200, oneLine, "one line of text"},
    {"contact", &Description::contact, 200, R"([^\x00-\x1f\x7f<>]+ <[^\x00-\x20\x7f<>@]+@[^\x00-\x20\x7f<>@]+>)",
        "a name and an address, like Example <help@example.com>"},
    {"homepage", &Description::homepage, 500, R"(https?://[^\x00-\x20\x7f"<>]+)",
        "an address that begins with https://"},
    {"notes", &Description::notes, 10000, R"([^\x00-\x08\x0b-\x1f\x7f]+)", "text"},
}};

std::string at(const toml::source_region& place, const std::string& problem)
{
    std::ostringstream line;
    line << "installer.toml:" << place.begin.line << ": " << problem;
    return line.str();
}

std::string trimmed(const std::string& text)
{
    constexpr auto blanks = " \t\r\n";
    const std::size_t begin = std::min(text.find_first_not_of(blanks), text.size());
    return text.substr(begin, text.find_last_not_of(blanks) + 1 - begin);
}

/// What a key that is none could have been.
std::string namesOfKeys()
{
    std::string names = keys.front().name;
    for (std::size_t index = 1; index < keys.size(); ++index) {
        names += (index + 1 < keys.size() ? ", " : " and ") + std::string(keys.at(index).name);
    }
    return names;
}

const Key* keyNamed(std::string_view name)
{
    const auto* const found = std::ranges::find(keys, name, &Key::name);
    return found == keys.end() ? nullptr : found;
}

/// Takes the text for a key over, or says what is wrong with it.
std::string take(const Key& key, const std::string& text, Description& description)
{
    const std::string quoted = "“" + std::string(key.name) + "”";
    if (text.size() > key.longest) {
        return quoted + " is longer than " + std::to_string(key.longest) + " bytes";
    }
    if (!std::regex_match(text, std::regex(key.form))) {
        return quoted + " must be " + key.words;
    }
    description.*key.field = text;
    return {};
}

void readEntry(std::string_view name, const toml::node& value, DescriptionReading& reading)
{
    const Key* const key = keyNamed(name);
    const auto* const given = value.as_string();
    const std::string problem = key == nullptr
        ? "there is no key “" + std::string(name) + "”; there are " + namesOfKeys()
        : take(*key, given == nullptr ? "" : trimmed(given->get()), reading.description);
    if (!problem.empty()) {
        reading.problems.push_back(at(value.source(), problem));
    }
}

void readVersion(const std::string& version, DescriptionReading& reading)
{
    const std::string problem = take(*keyNamed("version"), trimmed(version), reading.description);
    if (!problem.empty()) {
        reading.problems.push_back(problem);
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
            readVersion(version, reading);
        }
        findMissing(table, reading);
    } catch (const toml::parse_error& error) {
        reading.problems.push_back(at(error.source(), std::string(error.description())));
    }
    return reading;
}

} // namespace corvellane::pack
