#include "products/Discovery.h"

#include "platform/Resources.h"

#include <utility>

namespace corvellane {

std::variant<std::vector<std::string>, ListingFailure> foldersIn(const FileListing& files, const std::string& folder)
{
    FolderListing listing = files.list(folder);
    if (auto* failure = std::get_if<ListingFailure>(&listing)) {
        return std::move(*failure);
    }
    std::vector<std::string> folders;
    for (FolderEntry& entry : std::get<std::vector<FolderEntry>>(listing)) {
        if (entry.isFolder.value_or(false)) {
            folders.push_back(std::move(entry.path));
        }
    }
    return folders;
}

std::variant<std::vector<std::string>, ListingFailure> discoverProducts(
    const Resources& resources, const FileListing& files)
{
    const auto productsFolder = resources.folder("Products");
    if (!productsFolder) {
        return ListingFailure{"The folder “Products” doesn’t exist."};
    }
    return foldersIn(files, *productsFolder);
}

} // namespace corvellane
