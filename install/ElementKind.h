#pragma once

#include <string_view>

namespace corvellane {

/// What an element is for, and so where it is linked.
enum class ElementKind { lightroom, video, photo };

/// Decided by words anywhere in the element's full path, capitals distinguished: "Lightroom" before "Tessellane"
/// before everything else.
ElementKind kindOf(std::string_view elementPath);

/// What an element for Lightroom carries in its names.
struct LightroomGeneration {
    /// "3" or "4".
    std::string_view digit;
    /// The identifier of the external editor's preset.
    std::string_view presetIdentifier;
};

/// Generation 3 when the path contains "Velvetgrain 3", else 4.
LightroomGeneration generationOf(std::string_view elementPath);

/// What the names of the bundles that a video element supersedes end with, before ".plugin": "2" when the element's
/// own name contains a "2", else nothing.
std::string_view supersededSuffix(std::string_view elementName);

} // namespace corvellane
