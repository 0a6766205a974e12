#include "state/AppSettings.h"

#include "install/AccessProbe.h"
#include "install/ScriptOutcome.h"
#include "platform/Application.h"
#include "platform/Console.h"
#include "platform/Dispatcher.h"
#include "platform/Pasteboard.h"
#include "platform/Workspace.h"
#include "products/Discovery.h"

#include <algorithm>
#include <iterator>
#include <latch>
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
        break;
    case Page::install:
        return showPermanentlyAlert.set(true);
    case Page::summary:
        return terminateApp();
    default:
        break;
    }
    currentPage.set(pageAfter(currentPage.get()));
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
    auto discovered = discoverProducts(platform_.resources, platform_.files);
    if (!discovered) {
        printFailure(discovered.error());
        return {};
    }
    return ProductSelection(*std::move(discovered));
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
        auto found = foldersIn(platform_.files, location);
        if (!found) {
            printFailure(found.error());
            continue;
        }
        std::move(found->begin(), found->end(), std::back_inserter(elements));
    }
    return elements;
}

void AppSettings::printFailure(const Failure& failure)
{
    platform_.console.print("Fail__ " + failure.message);
}

// Installation

HostPaths AppSettings::hostPaths() const
{
    return {product_.appCorvellane(), product_.appSuppCorvellaneVideo(), product_.appSuppCorvellane(),
        product_.userAppSuppLR()};
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
    runInBackground(
        std::move(script), [this](ScriptExecution execution) { applyOutcome(outcomeOf(std::move(execution))); });
}

void AppSettings::applyOutcome(const ScriptOutcome& outcome)
{
    using Ending = ScriptOutcome::Ending;
    if (outcome.errorDescription) {
        platform_.console.print("Error: " + *outcome.errorDescription);
        completedWithErrors.set(true);
    }
    if (outcome.ending == Ending::unknown || outcome.ending == Ending::canceled) {
        return;
    }
    if (outcome.ending == Ending::failed) {
        completedWithErrors.set(true);
        logDetailsStr = outcome.resultText;
    }
    currentPage.set(Page::summary);
    platform_.console.print("ERROR VALUE " + outcome.resultText);
}

void AppSettings::checkAccess()
{
    runInBackground(
        std::string(accessProbeScript), [this](const ScriptExecution& execution) { applyProbe(execution); });
}

void AppSettings::applyProbe(const ScriptExecution& execution)
{
    if (execution.errorDescription) {
        accessType.set(FinderAccess::unknown);
        platform_.console.print("Error: " + *execution.errorDescription);
        return;
    }
    if (!execution.result || !execution.result->text) {
        return;
    }
    accessType.set(finderAccessFromRawValue(*execution.result->text).value_or(FinderAccess::unknown));
    if (accessType.get() == FinderAccess::allowed) {
        installSelectedProducts();
        showFinderAlert.set(false);
    } else {
        showFinderAlert.set(true);
    }
}

/// Blocks until the script has ended; `completion` follows on the main queue, unless the service makes no script.
void AppSettings::runInBackground(std::string source, std::function<void(ScriptExecution)> completion)
{
    const auto ended = std::make_shared<std::latch>(1);
    platform_.dispatcher.submitToBackground(
        [self = shared_from_this(), source = std::move(source), completion = std::move(completion), ended]() mutable {
            const auto script = self->platform_.scripts.create(std::move(source));
            if (script == nullptr) {
                return ended->count_down();
            }
            auto execution = std::make_shared<ScriptExecution>(script->execute());
            ended->count_down();
            Dispatcher& dispatcher = self->platform_.dispatcher;
            dispatcher.submitToMain([self = std::move(self), completion = std::move(completion),
                                        execution = std::move(execution)] { completion(std::move(*execution)); });
        });
    ended->wait();
}

} // namespace corvellane
