#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace corvellane::pack {

/// What a maker says of an installer, in the file "installer.toml". UTF-8, every text one line except the notes.
struct Description {
    /// What people see: "Example Grain Installer".
    std::string name;
    /// A reversed domain name and more, the same for all versions: "com.example.GrainInstaller".
    std::string identifier;
    /// Digits first; letters, digits, ".", "+", "~" after that.
    std::string version;
    std::string publisher;
    /// Who answers questions: "Example <help@example.com>".
    std::string contact;
    std::string homepage;
    /// What is new in this version.
    std::string notes;

    /// The package's name on every system: the identifier in small letters.
    std::string packageName() const;
};

/// A description, or what is wrong with it, a line each: "installer.toml:3: …", or of a version that is not the file's
/// without a place.
struct DescriptionReading {
    Description description;
    std::vector<std::string> problems;
};

/// Reads the text of "installer.toml" (https://toml.io/en/v1.0.0). Every key is needed; a version that is given
/// otherwise, not empty, takes the place of the file's.
DescriptionReading readDescription(std::string_view text, const std::string& version);

} // namespace corvellane::pack
