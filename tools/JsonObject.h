#pragma once

#include <string>
#include <string_view>

namespace corvellane {

/// Writes a JSON object (RFC 8259) key by key, in the order of the calls. Texts are valid UTF-8 and stay UTF-8.
class JsonObject {
public:
    void addText(std::string_view key, std::string_view value);

    /// Nothing for an empty value.
    void addName(std::string_view key, std::string_view value);

    /// Nothing for false.
    void addFlag(std::string_view key, bool value);

    /// At most six digits after the point, none that say nothing; nothing at all for zero.
    void addNumber(std::string_view key, double value);

    /// A value that is JSON already; nothing for an empty one.
    void addJson(std::string_view key, std::string_view json);

    std::string text() const { return body_.empty() ? "{}" : body_ + "}"; }

private:
    std::string body_;
};

} // namespace corvellane
