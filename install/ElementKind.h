#pragma once

#include "install/HostPaths.h"

#include <string_view>

namespace corvellane {

/// What an element is for, and so where it is linked. The last kind takes what no other does.
enum class ElementKind { lightroom, video, photo };

/// What is fixed for all elements of a kind.
struct ElementTraits {
    /// For a person.
    std::string_view name;
    /// Makes an element of this kind when it stands in its path, capitals distinguished.
    std::string_view word;
    /// The host's folder.
    std::string HostPaths::* folder = nullptr;
};

constexpr ElementTraits traitsOf(ElementKind kind)
{
    switch (kind) {
    case ElementKind::lightroom:
        return {"Lightroom", "Lightroom", &HostPaths::lightroom};
    case ElementKind::video:
        return {"video", "Tessellane", &HostPaths::video};
    case ElementKind::photo:
        return {"photo", "", &HostPaths::photo};
    }
    return {};
}

constexpr std::string_view nameOf(ElementKind kind)
{
    return traitsOf(kind).name;
}

/// The first of the kinds whose word stands anywhere in the element's full path.
ElementKind kindOf(std::string_view elementPath);

/// What an element for Lightroom carries in its names.
struct LightroomGeneration {
    /// "3" or "4".
    std::string digit;
    /// The identifier of the external editor's preset.
    std::string presetIdentifier;
};

/// Generation 3 when the path contains "Velvetgrain 3", else 4.
LightroomGeneration generationOf(std::string_view elementPath);

/// What the names of the bundles that a video element supersedes end with, before ".plugin": "2" when the element's
/// own name contains a "2", else nothing.
std::string supersededSuffix(std::string_view elementName);

} // namespace corvellane
