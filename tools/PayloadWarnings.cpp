#include "tools/PayloadWarnings.h"

#include "agreement/Document.h"
#include "base/PathNames.h"
#include "install/ElementKind.h"
#include "install/ScriptEscapes.h"
#include "tools/PrintableText.h"

#include <algorithm>
#include <filesystem>
#include <iterator>

namespace corvellane {
namespace {

namespace fs = std::filesystem;

void append(PayloadWarnings& warnings, PayloadWarnings more)
{
    std::ranges::move(more, std::back_inserter(warnings));
}

PayloadWarnings warnAboutKind(const std::string& path)
{
    const std::string name(lastPathComponent(path));
    const ElementKind kind = kindOf(path);
    if (kind != kindOf(name)) {
        return {{path, "is a " + std::string(nameOf(kind)) + " element only by the name of a folder above it"}};
    }
    const auto digit = generationOf(path).digit;
    if (kind == ElementKind::lightroom && digit != generationOf(name).digit) {
        return {{path, "is of generation " + std::string(digit) + " only by the name of a folder above it"}};
    }
    return {};
}

/// The last word of the name, without the extension.
std::string_view lastWord(std::string_view name)
{
    const std::string_view stem = name.substr(0, name.rfind('.'));
    return stem.substr(stem.rfind(' ') + 1);
}

PayloadWarnings warnAboutVideoName(const std::string& path)
{
    const std::string_view name = lastPathComponent(path);
    if (kindOf(path) != ElementKind::video || supersededSuffix(name).empty() || lastWord(name) == "2") {
        return {};
    }
    return {{path, "supersedes the bundles of generation 2, because of the “2” inside its name"}};
}

PayloadWarnings warnAboutLightroomContents(const std::string& path)
{
    if (kindOf(path) != ElementKind::lightroom) {
        return {};
    }
    const std::string digit(generationOf(path).digit);
    PayloadWarnings warnings;
    for (const std::string& needed :
        {"Corvellane Velvetgrain " + digit, "velvetgrain" + digit + ".lrdevplugin", "Velvetgrain" + digit + ".app"}) {
        std::error_code error;
        if (!fs::is_directory(fs::path(path) / needed, error)) {
            warnings.push_back({path, "lacks the folder " + quotedPrintable(needed) + ", which the script needs"});
        }
    }
    return warnings;
}

PayloadWarnings warnAboutLink(const fs::path& link, const fs::path& element)
{
    std::error_code error;
    const fs::path target = fs::read_symlink(link, error);
    const fs::path inside = (link.parent_path() / target).lexically_normal().lexically_relative(element);
    if (target.is_absolute() || inside.empty() || *inside.begin() == "..") {
        return {{link.native(), "is a link that leaves its element: “" + target.native() + "”"}};
    }
    if (!fs::exists(link, error)) {
        return {{link.native(), "is a link to nothing: “" + target.native() + "”"}};
    }
    return {};
}

/// A package gives everybody leave to read, but a folder that is unpacked by hand keeps its modes.
PayloadWarnings warnAboutMode(const fs::path& path)
{
    std::error_code error;
    const fs::file_status status = fs::symlink_status(path, error);
    const bool isFolder = status.type() == fs::file_type::directory;
    if (!isFolder && status.type() != fs::file_type::regular) {
        return {
            {path.native(), "is neither a file nor a folder nor a link, and keeps its element from being installed"}};
    }
    PayloadWarnings warnings;
    const auto needed = isFolder ? fs::perms::others_read | fs::perms::others_exec : fs::perms::others_read;
    if ((status.permissions() & needed) != needed) {
        warnings.push_back({path.native(), "cannot be read by everybody"});
    }
    if ((status.permissions() & (fs::perms::set_uid | fs::perms::set_gid)) != fs::perms::none) {
        warnings.push_back(
            {path.native(), "has a set-user-ID or set-group-ID bit, which is lost when it is installed"});
    }
    return warnings;
}

PayloadWarnings warnAboutTree(const fs::path& element)
{
    PayloadWarnings warnings;
    std::vector<fs::path> folders{element};
    while (!folders.empty()) {
        const fs::path folder = std::move(folders.back());
        folders.pop_back();
        std::error_code error;
        for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
            entry.increment(error)) {
            std::error_code unknown;
            if (entry->is_symlink(unknown)) {
                append(warnings, warnAboutLink(entry->path(), element));
                continue;
            }
            append(warnings, warnAboutMode(entry->path()));
            if (entry->is_directory(unknown)) {
                folders.push_back(entry->path());
            }
        }
        if (error) {
            warnings.push_back({folder.native(), "cannot be read: " + error.message()});
        }
    }
    return warnings;
}

} // namespace

PayloadWarnings warnAboutEntries(const Files& files, const std::string& folder)
{
    const auto entries = files.list(folder);
    if (!entries) {
        return {{folder, "cannot be read: " + entries.error().message}};
    }
    PayloadWarnings warnings;
    for (const FolderEntry& entry : *entries) {
        if (!entry.isFolder.value_or(false)) {
            warnings.push_back({entry.path, "is no folder and will be ignored"});
        }
    }
    return warnings;
}

PayloadWarnings warnAboutAgreement(const Files& files, const std::string& productsFolder)
{
    const fs::path folder = fs::path(productsFolder).parent_path();
    const std::string name = folder.filename();
    if (name != "resources" && name != "Resources") {
        return {};
    }
    const fs::path path = folder / "CorvellaneEULA.rtf";
    const auto agreement = readAgreement(files, path);
    return agreement ? PayloadWarnings()
                     : PayloadWarnings{{path, "is no agreement to show: " + agreement.error().message}};
}

PayloadWarnings warnAboutMissingElements(const std::string& product, const std::vector<std::string>& elements)
{
    if (elements.empty()) {
        return {{product, "holds no folder and installs nothing"}};
    }
    return {};
}

PayloadWarnings warnAboutName(const std::string& path)
{
    const std::string name(lastPathComponent(path));
    if (asEchoedLuaString(name) == name) {
        return {};
    }
    return {{path, "has a name with characters that the script has to escape"}};
}

PayloadWarnings warnAboutElement(const std::string& path)
{
    PayloadWarnings warnings = warnAboutKind(path);
    append(warnings, warnAboutVideoName(path));
    append(warnings, warnAboutLightroomContents(path));
    append(warnings, warnAboutTree(path));
    return warnings;
}

PayloadWarnings warnAboutUncreatedFolder(const HostPaths& hosts, const std::vector<std::string>& elements)
{
    const auto firstOf = [&](ElementKind kind) {
        return std::ranges::find_if(elements, [&](const auto& path) { return kindOf(path) == kind; });
    };
    const auto video = firstOf(ElementKind::video);
    const auto photo = firstOf(ElementKind::photo);
    if (video == elements.end() || photo == elements.end()) {
        return {};
    }
    return {{video < photo ? hosts.photo : hosts.video,
        "is not created by the script when these products are installed together; it must be there already"}};
}

} // namespace corvellane
