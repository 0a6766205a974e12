#include "tools/Rehearsal.h"

#include "platform/Resources.h"
#include "platform/ScriptService.h"
#include "platform/posix/PosixStandardFolders.h"

#include <filesystem>
#include <utility>

namespace corvellane {
namespace {

class RehearsalResources : public Resources {
public:
    explicit RehearsalResources(std::string productsFolder)
        : productsFolder_(std::move(productsFolder))
    {
    }

    std::optional<std::string> folder(const std::string& name) const override
    {
        return name == "Products" ? productsFolder_ : productsFolder_ + "/../" + name;
    }

    std::optional<std::string> file(const std::string& baseName, const std::string& extension) const override
    {
        const auto path = std::filesystem::path(productsFolder_).parent_path() / (baseName + "." + extension);
        std::error_code error;
        return std::filesystem::exists(path, error) ? std::optional(path.native()) : std::nullopt;
    }

private:
    std::string productsFolder_;
};

/// Runs none.
struct RefusedScripts : ScriptService {
    struct Refused : Script {
        ScriptExecution execute() override
        {
            return {ScriptExecution::Value{"Nothing has been installed: on this system scripts run by a service of its "
                                           "own, which would ask for a password."},
                std::nullopt};
        }
    };

    std::unique_ptr<Script> create(std::string) override { return std::make_unique<Refused>(); }
};

} // namespace

void makeRehearsal(System& system, const std::string& productsFolder, const std::string& into)
{
    system.resources = std::make_shared<RehearsalResources>(productsFolder);
    system.folders = std::make_shared<PosixStandardFolders>(into);
    system.prompt = system.makeRehearsalPrompt(productsFolder, into);
    if (system.prompt == nullptr) {
        system.scripts = std::make_shared<RefusedScripts>();
    }
    const System windowless;
    system.workspace = windowless.workspace;
    system.fileManager = windowless.fileManager;
}

Rehearsal::Rehearsal(System system, const std::string& productsFolder, const std::string& into)
    : system_(std::move(system))
    , productsFolder_(productsFolder)
{
    makeRehearsal(system_, productsFolder, into);
    system_.dispatcher = dispatcher_;
    settings_ = std::make_shared<AppSettings>(system_.platform());
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
    dispatcher_->runMainQueue();
}

} // namespace corvellane
