#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace corvellane {

/// An error keeps the installation or a plug-in from working; a warning is likely not meant; a note is worth knowing.
enum class Severity : std::uint8_t { error, warning, note };

enum class FindingCode : std::uint8_t {
    noProducts,
    unreadable,
    special,
    missing,
    overwritten,
    removed,
    blocked,
    refused,
    emptyElement,
    tooLong,
    closed,
    open,
    setId,
    capitals,
    kindCapitals,
    kindByFolder,
    generationByFolder,
    superseding,
    linkOutside,
    linkBroken,
    hidden,
    leftover,
    emptyProduct,
    ignoredLink,
    agreement,
    logo,
    logoColours,
    noRoom,
    ignored,
    escaped,
    assumed,
    rewritten,
};

struct FindingTraits {
    /// What programs know it by; it stays what it is.
    std::string_view name;
    Severity severity = Severity::error;
};

constexpr FindingTraits traitsOf(FindingCode code)
{
    using enum FindingCode;
    using enum Severity;
    switch (code) {
    case noProducts:
        return {"no-products", error};
    case unreadable:
        return {"unreadable", error};
    case special:
        return {"special-file", error};
    case missing:
        return {"missing", error};
    case overwritten:
        return {"overwritten", error};
    case removed:
        return {"removed", error};
    case blocked:
        return {"blocked", error};
    case refused:
        return {"refused", error};
    case emptyElement:
        return {"empty-element", error};
    case tooLong:
        return {"too-long", error};
    case closed:
        return {"closed", warning};
    case open:
        return {"open", warning};
    case setId:
        return {"set-id", warning};
    case capitals:
        return {"capitals", warning};
    case kindCapitals:
        return {"kind-capitals", warning};
    case kindByFolder:
        return {"kind-by-folder", warning};
    case generationByFolder:
        return {"generation-by-folder", warning};
    case superseding:
        return {"superseding", warning};
    case linkOutside:
        return {"link-outside", warning};
    case linkBroken:
        return {"link-broken", warning};
    case hidden:
        return {"hidden", warning};
    case leftover:
        return {"leftover", warning};
    case emptyProduct:
        return {"empty-product", warning};
    case ignoredLink:
        return {"ignored-link", warning};
    case agreement:
        return {"agreement", warning};
    case logo:
        return {"logo", warning};
    case logoColours:
        return {"logo-colours", warning};
    case noRoom:
        return {"no-room", warning};
    case ignored:
        return {"ignored", note};
    case escaped:
        return {"escaped", note};
    case assumed:
        return {"assumed", note};
    case rewritten:
        return {"rewritten", note};
    }
    return {};
}

constexpr std::string_view nameOf(FindingCode code)
{
    return traitsOf(code).name;
}

constexpr std::string_view nameOf(Severity severity)
{
    switch (severity) {
    case Severity::error:
        return "error";
    case Severity::warning:
        return "warning";
    case Severity::note:
        return "note";
    }
    return {};
}

/// Something to know about a maker's folder before it is shipped.
struct Finding {
    FindingCode code = FindingCode::noProducts;
    /// What it is about: bytes, as the file system holds them.
    std::string path;
    /// For a person; reads on from the path.
    std::string text;
};

using Findings = std::vector<Finding>;

} // namespace corvellane
