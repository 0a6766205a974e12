#pragma once

#include "cli/Installation.h"
#include "platform/posix/EntryStatus.h"

#include <optional>
#include <string>
#include <vector>

namespace corvellane {

/// Something that is not as it is shipped.
struct Difference {
    std::string path;
    /// For a person; reads on from the path.
    std::string text;
};

enum class ElementState { asShipped, missing, differs };

constexpr std::string_view nameOf(ElementState state)
{
    switch (state) {
    case ElementState::asShipped:
        return "as shipped";
    case ElementState::missing:
        return "missing";
    case ElementState::differs:
        return "differs";
    }
    return {};
}

struct ElementComparison {
    ElementState state = ElementState::asShipped;
    /// By their paths; none for an element that is missing altogether.
    std::vector<Difference> differences;
};

/// Compares all that installing the element makes, and what else lies in its copy, with this machine: contents, links,
/// owners and modes. Folders that elements share are looked at for what they are and whose, not for their modes.
ElementComparison compare(const MadeElement& element);

/// Whether something of what is made for the element alone is there, whatever has become of it.
bool isAnyThere(const MadeElement& element);

/// Why what stands there is not what is made; absent when it is. A file that cannot be read is not.
std::optional<std::string> difference(const std::string& path, const Made& made);

/// Why it is something else than is made, its owner and mode left aside: what a person or another program has put
/// there.
std::optional<std::string> differenceInContents(
    const std::string& path, const ModelEntry& entry, const EntryStatus& status);

} // namespace corvellane
