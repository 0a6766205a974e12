#include "state/AppSettings.h"

#include "install/AccessProbe.h"
#include "install/ScriptOutcome.h"
#include "platform/Application.h"
#include "platform/Console.h"
#include "platform/Dispatcher.h"
#include "platform/Pasteboard.h"
#include "platform/ScriptService.h"
#include "platform/Workspace.h"
#include "products/Discovery.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace corvellane {

AppSettings::AppSettings(const Platform& platform)
    : pasteboard(platform.pasteboard)
    , platform_(platform)
    , product_(platform.folders)
{
}

// Pages and alerts

Alert AppSettings::visibleAlert() const
{
    return corvellane::visibleAlert(currentPage.get(),
        {agreeWithTerms.get(), showLicenseAlert.get(), showPermanentlyAlert.get(), showFinderAlert.get(),
            showLogDetailsWindow.get()});
}

void AppSettings::nextAction()
{
    switch (currentPage.get()) {
    case Page::license:
        if (!agreeWithTerms.get()) {
            return showLicenseAlert.set(true);
        }
        [[fallthrough]];
    case Page::intro:
    case Page::products:
        return currentPage.set(pageAfter(currentPage.get()));
    case Page::install:
        return showPermanentlyAlert.set(true);
    case Page::summary:
        return terminateApp();
    }
}

void AppSettings::goBack()
{
    if (currentPage.get() != Page::intro) {
        currentPage.set(pageBefore(currentPage.get()));
    }
}

void AppSettings::agreeWithLicense()
{
    agreeWithTerms.set(true);
    currentPage.set(pageAfter(currentPage.get()));
}

void AppSettings::closeLicenseAlert()
{
    showLicenseAlert.set(false);
}

void AppSettings::closeInstallConfirmation()
{
    showPermanentlyAlert.set(false);
}

void AppSettings::confirmInstallation()
{
    showPermanentlyAlert.set(false);
    installSelectedProducts();
}

void AppSettings::toggleLogDetails()
{
    showLogDetailsWindow.modify([](bool& shown) { shown = !shown; });
}

void AppSettings::copyLogDetails()
{
    pasteboard.clearContents();
    pasteboard.setString(*logDetailsStr);
}

void AppSettings::openAutomationSettings()
{
    platform_.workspace.openUrl(std::string(automationSettingsUrl));
}

void AppSettings::terminateApp()
{
    platform_.application.terminate();
}

// Products

void AppSettings::refreshProducts()
{
    products.set({});
    products.set(productsToInstall());
}

ProductSelection AppSettings::productsToInstall()
{
    return ProductSelection(foldersOrNone(discoverProducts(platform_.resources, platform_.files)));
}

bool AppSettings::selectedExist() const
{
    return products.get().anyTicked();
}

void AppSettings::selectAll()
{
    products.modify([](ProductSelection& selection) { selection.tickAll(); });
}

void AppSettings::toggleProduct(const std::string& location)
{
    products.modify([&](ProductSelection& selection) { selection.toggle(location); });
}

std::vector<std::string> AppSettings::elementsToCopy()
{
    std::vector<std::string> elements;
    for (const std::string& location : products.get().ticked()) {
        std::ranges::move(foldersOrNone(foldersIn(platform_.files, location)), std::back_inserter(elements));
    }
    return elements;
}

std::vector<std::string> AppSettings::foldersOrNone(Expected<std::vector<std::string>> folders)
{
    if (!folders) {
        platform_.console.print("Fail__ " + folders.error().message);
        return {};
    }
    return *std::move(folders);
}

// Installation

HostPaths AppSettings::hostPaths() const
{
    return hostPathsOf(product_);
}

void AppSettings::installSelectedProducts()
{
    const HostPaths hosts = hostPaths();
    std::string script = composeInstallScript(hosts, elementsToCopy());
    platform_.console.print("SCRIPT -- " + script);
    performScript(std::move(script));
}

void AppSettings::performScript(std::string script)
{
    runInBackground(std::move(script), &AppSettings::applyOutcome);
}

void AppSettings::applyOutcome(const ScriptExecution& execution)
{
    if (execution.errorDescription) {
        platform_.console.print("Error: " + *execution.errorDescription);
        completedWithErrors.set(true);
    }
    const std::optional<std::string> text = resultText(execution);
    if (!text) {
        return;
    }
    switch (outcomeOf(*text)) {
    case ScriptOutcome::canceled:
        return;
    case ScriptOutcome::failed:
        completedWithErrors.set(true);
        logDetailsStr = *text;
        [[fallthrough]];
    case ScriptOutcome::succeeded:
        currentPage.set(Page::summary);
        platform_.console.print("ERROR VALUE " + *text);
    }
}

void AppSettings::checkAccess()
{
    runInBackground(std::string(accessProbeScript), &AppSettings::applyProbe);
}

void AppSettings::applyProbe(const ScriptExecution& execution)
{
    if (execution.errorDescription) {
        accessType.set(FinderAccess::unknown);
        platform_.console.print("Error: " + *execution.errorDescription);
        return;
    }
    const std::optional<std::string> text = resultText(execution);
    if (!text) {
        return;
    }
    accessType.set(finderAccessFromRawValue(*text).value_or(FinderAccess::unknown));
    if (accessType.get() == FinderAccess::allowed) {
        installSelectedProducts();
    }
    showFinderAlert.set(accessType.get() != FinderAccess::allowed);
}

/// Blocks until the script has ended; `completion` follows on the main queue, unless the service makes no script.
void AppSettings::runInBackground(std::string source, Completion completion)
{
    const std::shared_ptr<WaitGroup> group = platform_.dispatcher.makeWaitGroup();
    group->enter();
    platform_.dispatcher.submitToBackground(
        [self = shared_from_this(), group, completion, source = std::move(source)]() mutable {
            const auto script = self->platform_.scripts.create(std::move(source));
            auto execution = script ? std::optional(script->execute()) : std::nullopt;
            group->leave();
            if (execution) {
                Dispatcher& dispatcher = self->platform_.dispatcher;
                // Moved on, so that the main thread is the last to hold the state.
                dispatcher.submitToMain([self = std::move(self), completion, execution = *std::move(execution)] {
                    ((*self).*completion)(execution);
                });
            }
        });
    group->wait();
}

} // namespace corvellane
