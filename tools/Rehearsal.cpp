#include "tools/Rehearsal.h"

#include <filesystem>

namespace corvellane {

std::optional<std::string> RehearsalResources::folder(const std::string& name) const
{
    return name == "Products" ? productsFolder_ : productsFolder_ + "/../" + name;
}

std::optional<std::string> RehearsalResources::file(const std::string& baseName, const std::string& extension) const
{
    const std::filesystem::path path
        = std::filesystem::path(productsFolder_).parent_path() / (baseName + "." + extension);
    std::error_code error;
    return std::filesystem::exists(path, error) ? std::optional(path.native()) : std::nullopt;
}

Rehearsal::Rehearsal(const std::string& productsFolder, const std::string& into, Console& console)
    : resources_(productsFolder)
    , folders_(into)
    , settings_(std::make_shared<AppSettings>(Platform{
          application_, console, dispatcher_, files_, pasteboard_, resources_, scripts_, folders_, workspace_}))
{
    settings_->refreshProducts();
}

void Rehearsal::install()
{
    settings_->nextAction();
    settings_->nextAction();
    settings_->agreeWithLicense();
    settings_->nextAction();
    settings_->nextAction();
    settings_->confirmInstallation();
    dispatcher_.runMainQueue();
}

} // namespace corvellane
