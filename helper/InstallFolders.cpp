#include "helper/InstallFolders.h"

#include <algorithm>

namespace corvellane::runner {
namespace {

/// Whether the path lies below the folder and is not the folder itself.
bool isBelow(std::string_view path, std::string_view folder)
{
    return isWithin(path, folder) && path.size() > folder.size();
}

/// Gives the path of a command that is not where it must be; null when all are.
class Misplaced {
public:
    explicit Misplaced(const InstallFolders& folders)
        : folders_(folders)
    {
    }

    const std::string* operator()(const MakeFolder& command) const { return unlessWritten(command.path, &isWithin); }

    const std::string* operator()(const Copy& command) const
    {
        const bool isOurs = isBelow(command.source, folders_.products) || isBelow(command.source, folders_.application);
        return isOurs ? unlessWritten(command.folder, &isWithin) : &command.source;
    }

    const std::string* operator()(const Remove& command) const { return unlessWritten(command.path, &isBelow); }

    const std::string* operator()(const Link& command) const
    {
        return isBelow(command.target, folders_.application) ? unlessWritten(command.link, &isWithin) : &command.target;
    }

    const std::string* operator()(const WriteText& command) const { return unlessWritten(command.path, &isBelow); }

    const std::string* operator()(const HandOver& command) const
    {
        return isBelow(command.path, folders_.lightroom) ? nullptr : &command.path;
    }

    const std::string* operator()(const Unlink& command) const
    {
        return isBelow(command.target, folders_.application) ? unlessWritten(command.link, &isBelow) : &command.target;
    }

    const std::string* operator()(const RemoveFolders& command) const { return unlessWritten(command.path, &isWithin); }

private:
    const std::string* unlessWritten(const std::string& path, bool (*isThere)(std::string_view, std::string_view)) const
    {
        for (const auto* folder : {&folders_.application, &folders_.video, &folders_.photo, &folders_.lightroom}) {
            if (isThere(path, *folder)) {
                return nullptr;
            }
        }
        return &path;
    }

    const InstallFolders& folders_;
};

struct Written {
    const std::string& operator()(const Copy& copy) const { return copy.folder; }
    const std::string& operator()(const Link& link) const { return link.link; }
    const std::string& operator()(const Unlink& link) const { return link.link; }
    const std::string& operator()(const auto& other) const { return other.path; }
};

} // namespace

InstallFolders installFolders(const std::string& prefix, const std::string& home, const std::string& products)
{
    const std::string adobe = "/Library/Application Support/Adobe/";
    const std::string base = prefix + (home == "/" ? "" : home);
    return {products.empty() ? "" : products + "/", prefix + "/Applications/Corvellane/",
        prefix + adobe + "Common/Plug-ins/7.0/MediaCore/Corvellane/", prefix + adobe + "Plug-Ins/CC/Corvellane/",
        home.starts_with('/') ? base + adobe + "Lightroom/" : ""};
}

bool isWithin(std::string_view path, std::string_view folder)
{
    const std::string_view whole = path;
    if (folder.empty() || !path.starts_with(folder)) {
        return !folder.empty() && folder.substr(0, folder.size() - 1) == whole;
    }
    path.remove_prefix(folder.size());
    while (!path.empty()) {
        const auto name = path.substr(0, path.find('/'));
        if (name.empty() || name == "." || name == "..") {
            return false;
        }
        path.remove_prefix(std::min(path.size(), name.size() + 1));
    }
    return true;
}

const std::string& writtenPath(const InstallCommand& command)
{
    return std::visit(Written(), command);
}

Reading readCommand(std::string_view text, const InstallFolders& folders)
{
    auto command = parseCommand(text);
    if (!command) {
        return {std::nullopt, "“" + std::string(text) + "” is not a command of an installation."};
    }
    if (const std::string* misplaced = std::visit(Misplaced(folders), *command)) {
        return {std::nullopt, "“" + *misplaced + "” does not lie in a folder of an installation."};
    }
    return {std::move(command), {}};
}

} // namespace corvellane::runner
