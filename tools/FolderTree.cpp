#include "tools/FolderTree.h"

#include "tools/PrintableText.h"

#include <algorithm>
#include <filesystem>

namespace corvellane {
namespace {

namespace fs = std::filesystem;

std::string describe(const fs::path& path, const std::string& name)
{
    std::error_code error;
    switch (fs::symlink_status(path, error).type()) {
    case fs::file_type::directory:
        return "folder  " + name;
    case fs::file_type::symlink:
        return "link    " + name + " -> " + printable(fs::read_symlink(path, error).native());
    case fs::file_type::regular:
        return "file    " + name + " (" + std::to_string(fs::file_size(path, error)) + " bytes)";
    default:
        return "other   " + name;
    }
}

} // namespace

std::vector<std::string> describeTree(const std::string& folder, const std::string& base)
{
    std::error_code error;
    std::vector<fs::path> paths;
    fs::recursive_directory_iterator entry(folder, fs::directory_options::skip_permission_denied, error);
    for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
        paths.push_back(entry->path());
    }
    std::ranges::sort(paths);
    std::vector<std::string> lines;
    lines.reserve(paths.size());
    for (const fs::path& path : paths) {
        lines.push_back(describe(path, printable(path.lexically_relative(base.empty() ? "/" : base).native())));
    }
    return lines;
}

} // namespace corvellane
