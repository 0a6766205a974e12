#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace corvellane {

/// The places that an install script's lines leave open.
enum class Place {
    application,
    video,
    photo,
    lightroom,
    element,
    name,
    digit,
    identifier,
    suffix,
    echoedInstalledElement,
    luaInstalledElement,
};

constexpr std::size_t placeCount = 11;

/// A text for each place, escaped for where it will stand.
class Fillings {
public:
    std::string& operator[](Place place) { return texts_[static_cast<std::size_t>(place)]; }
    const std::string& operator[](Place place) const { return texts_[static_cast<std::size_t>(place)]; }

private:
    std::array<std::string, placeCount> texts_;
};

/// Script lines with open places, which are written as names in square brackets:
///
/// | name                   | what is filled in                                                    |
/// |------------------------|----------------------------------------------------------------------|
/// | `[APP]`                | the maker's folder, which receives the elements                      |
/// | `[MC]`, `[CC]`, `[LR]` | the video, the photo and Lightroom's folder                          |
/// | `[P]`, `[N]`           | the element's path and name                                          |
/// | `[D]`, `[ID]`          | a Lightroom element's digit and preset identifier                    |
/// | `[S]`                  | the suffix of the bundles that a video element supersedes            |
/// | `[echo APP N]`         | the installed element's path, for `echo`                             |
/// | `[Lua APP N]`          | the installed element's path, for `echo`, in a quoted Lua string     |
class ScriptTemplate {
public:
    /// `lines` must outlive the template and hold no square brackets but those of the names above.
    explicit ScriptTemplate(std::string_view lines);

    void appendTo(std::string& script, const Fillings& fillings) const;

private:
    /// A piece of fixed text and the place behind it.
    struct Segment {
        std::string_view text;
        Place place;
    };

    std::vector<Segment> segments_;
    std::string_view ending_;
};

} // namespace corvellane
