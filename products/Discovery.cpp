#include "products/Discovery.h"

#include "platform/Resources.h"

#include <utility>

namespace corvellane {

Expected<std::vector<std::string>> foldersIn(const Files& files, const std::string& folder)
{
    return files.list(folder).map([](std::vector<FolderEntry> entries) {
        std::vector<std::string> folders;
        for (FolderEntry& entry : entries) {
            if (entry.isFolder.value_or(false)) {
                folders.push_back(std::move(entry.path));
            }
        }
        return folders;
    });
}

Expected<std::vector<std::string>> discoverProducts(const Resources& resources, const Files& files)
{
    const auto productsFolder = resources.folder("Products");
    if (!productsFolder) {
        return Unexpected({"The folder “Products” doesn’t exist.", 0});
    }
    return foldersIn(files, *productsFolder);
}

} // namespace corvellane
