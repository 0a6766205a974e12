#include "cli/Comparison.h"

#include "tools/PrintableText.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace corvellane {
namespace {

namespace fs = std::filesystem;
using Kind = ModelEntry::Kind;

fs::file_type typeOf(Kind kind)
{
    switch (kind) {
    case Kind::folder:
        return fs::file_type::directory;
    case Kind::file:
        return fs::file_type::regular;
    case Kind::link:
        return fs::file_type::symlink;
    case Kind::special:
        break;
    }
    return fs::file_type::unknown;
}

std::string nameOf(fs::file_type type)
{
    switch (type) {
    case fs::file_type::directory:
        return "folder";
    case fs::file_type::regular:
        return "file";
    case fs::file_type::symlink:
        return "link";
    default:
        return "special file";
    }
}

std::string inOctal(fs::perms mode)
{
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "%03o", static_cast<unsigned>(mode));
    return text.data();
}

std::optional<std::string> differenceInBytes(const std::string& path, const ModelEntry& entry)
{
    const auto isSame = entry.origin.empty() ? holdsBytes(path, entry.text) : haveSameBytes(path, entry.origin);
    if (!isSame) {
        return "cannot be compared: " + isSame.error().message;
    }
    return *isSame ? std::nullopt : std::optional<std::string>("has other contents");
}

/// What lies in the element's copy and is not shipped; folders that are not, without what is in them.
void addForeign(std::vector<Difference>& differences, const MadeElement& element)
{
    std::error_code error;
    fs::recursive_directory_iterator entry(element.copy, error);
    for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
        if (!element.entries.contains(entry->path().native())) {
            differences.push_back({entry->path().native(), "is not in what is shipped"});
            entry.disable_recursion_pending();
        }
    }
    if (error && error != std::errc::no_such_file_or_directory && error != std::errc::not_a_directory) {
        differences.push_back({element.copy, "cannot be read: " + error.message()});
    }
}

} // namespace

std::optional<std::string> differenceInContents(
    const std::string& path, const ModelEntry& entry, const EntryStatus& status)
{
    if (status.type != typeOf(entry.kind)) {
        return "is a " + nameOf(status.type) + ", not a " + nameOf(typeOf(entry.kind));
    }
    if (entry.kind == Kind::link && status.target != entry.target) {
        return "leads to " + quotedPrintable(status.target) + ", not to " + quotedPrintable(entry.target);
    }
    if (entry.kind != Kind::file) {
        return std::nullopt;
    }
    return status.size == entry.size ? differenceInBytes(path, entry) : "has other contents";
}

std::optional<std::string> difference(const std::string& path, const Made& made)
{
    const auto status = entryStatus(path);
    if (!status) {
        return "cannot be looked at: " + status.error().message;
    }
    if (status->type == fs::file_type::not_found) {
        return "is missing";
    }
    if (auto text = differenceInContents(path, made.entry, *status)) {
        return text;
    }
    if (status->owner != made.owner) {
        return "belongs to the user " + std::to_string(status->owner) + ", not " + std::to_string(made.owner);
    }
    const bool hasMode = made.entry.kind != Kind::link && !isSharedFolder(made.entry);
    if (hasMode && status->mode != made.entry.mode) {
        return "has the mode " + inOctal(status->mode) + ", not " + inOctal(made.entry.mode);
    }
    return std::nullopt;
}

bool isAnyThere(const MadeElement& element)
{
    return std::ranges::any_of(element.entries, [](const auto& made) {
        const auto status = isSharedFolder(made.second.entry) ? EntryStatus() : entryStatus(made.first);
        return status && status->type != fs::file_type::not_found && status->type != fs::file_type::none;
    });
}

ElementComparison compare(const MadeElement& element)
{
    ElementComparison result;
    bool isMissing = true;
    for (const auto& [path, made] : element.entries) {
        auto text = difference(path, made);
        isMissing = isMissing && (isSharedFolder(made.entry) || text == "is missing");
        if (text) {
            result.differences.push_back({path, *std::move(text)});
        }
    }
    if (isMissing) {
        return {ElementState::missing, {}};
    }
    addForeign(result.differences, element);
    std::ranges::sort(result.differences, {}, &Difference::path);
    result.state = result.differences.empty() ? ElementState::asShipped : ElementState::differs;
    return result;
}

} // namespace corvellane
