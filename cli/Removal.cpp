#include "cli/Removal.h"

#include "base/PathNames.h"
#include "helper/Execution.h"
#include "helper/InstallFolders.h"
#include "helper/MadeFolders.h"
#include "install/ScriptEscapes.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <ranges>
#include <set>

namespace corvellane {
namespace {

namespace fs = std::filesystem;
using Kind = ModelEntry::Kind;

bool isAtOrBelow(const std::string& path, const std::string& folder)
{
    return path == folder || path.starts_with(folder + "/");
}

/// Collects what is to go of one element.
class ElementRemoval {
public:
    ElementRemoval(Removal& removal, const MadeElement& element)
        : removal_(removal)
        , element_(element)
    {
    }

    void collect()
    {
        for (const auto& [path, made] : element_.entries) {
            if (made.entry.kind == Kind::link && made.entry.origin.empty()) {
                takeLink(path, made.entry);
            } else if (!isSharedFolder(made.entry) && !isInAnother(path)) {
                take(path);
            }
        }
    }

private:
    /// Whether it lies in something that is taken with all that is in it.
    bool isInAnother(const std::string& path) const
    {
        const auto folder = element_.entries.find(folderOf(path));
        return folder != element_.entries.end() && !isSharedFolder(folder->second.entry);
    }

    void takeLink(const std::string& path, const ModelEntry& entry)
    {
        const auto status = entryStatus(path);
        if (isThere(path, status) && isOurs(path, entry, *status)) {
            removal_.links.push_back({path, entry.target});
        }
    }

    /// Whether all that stands there goes.
    bool take(const std::string& path)
    {
        const auto status = entryStatus(path);
        const auto made = element_.entries.find(path);
        if (status && status->type == fs::file_type::not_found) {
            return true;
        }
        if (made == element_.entries.end()) {
            removal_.kept.push_back({path, "is not in what is shipped"});
            return false;
        }
        if (!isThere(path, status) || !isOurs(path, made->second.entry, *status)) {
            return false;
        }
        const std::size_t before = removal_.entries.size();
        if (status->type == fs::file_type::directory) {
            if (!takeAllIn(path)) {
                return false;
            }
            // One command takes the whole folder.
            removal_.entries.resize(before);
        }
        removal_.entries.push_back(path);
        return true;
    }

    bool takeAllIn(const std::string& folder)
    {
        bool isWhole = true;
        std::error_code error;
        for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
            entry.increment(error)) {
            isWhole = take(entry->path().native()) && isWhole;
        }
        if (error) {
            removal_.kept.push_back({folder, "cannot be read: " + error.message()});
        }
        return isWhole && !error;
    }

    bool isThere(const std::string& path, const Expected<EntryStatus>& status)
    {
        if (!status) {
            removal_.kept.push_back({path, "cannot be looked at: " + status.error().message});
        }
        return status && status->type != fs::file_type::not_found;
    }

    bool isOurs(const std::string& path, const ModelEntry& entry, const EntryStatus& status)
    {
        const bool contentsCount = entry.kind != Kind::file || !isAtOrBelow(path, element_.copy);
        auto reason = contentsCount || status.type != fs::file_type::regular ? differenceInContents(path, entry, status)
                                                                             : std::nullopt;
        if (reason) {
            removal_.kept.push_back({path, *std::move(reason)});
            return false;
        }
        return true;
    }

    Removal& removal_;
    const MadeElement& element_;
};

/// Whether all that lies in the folder goes.
bool isEmptied(const std::string& folder, const std::set<std::string>& gone)
{
    std::error_code error;
    for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
        entry.increment(error)) {
        if (!gone.contains(entry->path().native())) {
            return false;
        }
    }
    return !error;
}

/// The deepest first; each takes those above it along.
void collectFolders(Removal& removal, const std::set<std::string>& sharedFolders)
{
    std::set<std::string> gone(removal.entries.begin(), removal.entries.end());
    std::ranges::transform(removal.links, std::inserter(gone, gone.end()), &LinkToElement::path);
    for (const std::string& folder : std::ranges::reverse_view(sharedFolders)) {
        const std::string there = runner::nearestThere(folder);
        if (!runner::isMarkedMade(there) || !isEmptied(there, gone) || !gone.insert(there).second) {
            continue;
        }
        const bool isTakenAlong = std::ranges::any_of(
            removal.folders, [&](const std::string& below) { return below.starts_with(folder + "/"); });
        if (!isTakenAlong) {
            removal.folders.push_back(folder + "/");
        }
    }
}

} // namespace

Removal removalOf(const Installation& installation)
{
    Removal removal;
    for (const MadeElement& element : installation.elements) {
        ElementRemoval(removal, element).collect();
    }
    collectFolders(removal, installation.sharedFolders);
    return removal;
}

Removal clearanceFor(const MadeElement& element, const ElementComparison& comparison)
{
    Removal clearance;
    for (const auto& [path, text] : comparison.differences) {
        const auto made = element.entries.find(path);
        const bool isInCopy = isAtOrBelow(path, element.copy);
        const bool isPreset = !isInCopy && made != element.entries.end() && made->second.entry.kind == Kind::file;
        const auto status = entryStatus(path);
        const bool isThere = status && status->type != fs::file_type::not_found;
        const bool isFolder = isThere && status->type == fs::file_type::directory;
        if (isThere && (isInCopy || (isPreset && !isFolder))) {
            clearance.entries.push_back(path);
        }
    }
    return clearance;
}

Removal partFor(const Removal& removal, const std::vector<Person>& persons, std::size_t index)
{
    const auto isPart = [&](const std::string& path) {
        const auto person = std::ranges::find_if(
            persons, [&](const Person& each) { return runner::isWithin(path, each.hosts.lightroom); });
        return person == persons.end() ? index == 0 : person == persons.begin() + static_cast<std::ptrdiff_t>(index);
    };
    Removal part;
    std::ranges::copy_if(removal.entries, std::back_inserter(part.entries), isPart);
    std::ranges::copy_if(removal.links, std::back_inserter(part.links), isPart, &LinkToElement::path);
    std::ranges::copy_if(removal.folders, std::back_inserter(part.folders), isPart);
    return part;
}

void appendRemoval(ScriptText& script, const Removal& removal)
{
    for (const auto& [path, target] : removal.links) {
        const std::string link = asArgument(path);
        script.append({"[ ", quote, "$(readlink -n ", quote, link, quote, ")", quote, " != ", quote, asArgument(target),
            quote, " ] || rm -f ", quote, link, quote});
    }
    for (const std::string& path : removal.entries) {
        script.append({"rm -R -f ", quote, asArgument(path), quote});
    }
    for (const std::string& folder : removal.folders) {
        script.append({"rmdir -p ", quote, asArgument(folder), quote});
    }
}

} // namespace corvellane
