#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace corvellane {

/// An error keeps the installation or a plug-in from working; a warning is likely not meant; a note is worth knowing.
enum class Severity : std::uint8_t { error, warning, note };

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

struct FindingKind {
    /// What programs know it by; it stays what it is.
    std::string_view code;
    Severity severity = Severity::error;
};

/// All that can be found; docs/rehearse.md tells what each means.
constexpr auto findingKinds = std::to_array<FindingKind>({
    {"no-products", Severity::error},
    {"unreadable", Severity::error},
    {"special-file", Severity::error},
    {"missing", Severity::error},
    {"overwritten", Severity::error},
    {"removed", Severity::error},
    {"blocked", Severity::error},
    {"refused", Severity::error},
    {"empty-element", Severity::error},
    {"too-long", Severity::error},
    {"closed", Severity::warning},
    {"open", Severity::warning},
    {"set-id", Severity::warning},
    {"capitals", Severity::warning},
    {"kind-capitals", Severity::warning},
    {"kind-by-folder", Severity::warning},
    {"generation-by-folder", Severity::warning},
    {"superseding", Severity::warning},
    {"link-outside", Severity::warning},
    {"link-broken", Severity::warning},
    {"hidden", Severity::warning},
    {"leftover", Severity::warning},
    {"empty-product", Severity::warning},
    {"ignored-link", Severity::warning},
    {"agreement", Severity::warning},
    {"logo", Severity::warning},
    {"logo-colours", Severity::warning},
    {"icon", Severity::warning},
    {"no-room", Severity::warning},
    {"ignored", Severity::note},
    {"escaped", Severity::note},
    {"assumed", Severity::note},
    {"rewritten", Severity::note},
});

/// One of the kinds, by its code: another code does not build.
class FindingCode {
public:
    // NOLINTNEXTLINE(google-explicit-constructor): a code is written as what it is
    consteval FindingCode(const char* code)
        : kind_(*std::ranges::find(findingKinds, std::string_view(code), &FindingKind::code))
    {
    }

    constexpr std::string_view name() const { return kind_.code; }
    constexpr Severity severity() const { return kind_.severity; }

private:
    FindingKind kind_;
};

/// Something to know about a maker's folder before it is shipped.
struct Finding {
    FindingCode code;
    /// What it is about: bytes, as the file system holds them.
    std::string path;
    /// For a person; reads on from the path.
    std::string text;
};

using Findings = std::vector<Finding>;

} // namespace corvellane
