#pragma once

#include "base/Expected.h"
#include "base/Observable.h"
#include "base/Signal.h"
#include "base/Snapshot.h"
#include "install/InstallScript.h"
#include "platform/Platform.h"
#include "products/Product.h"
#include "products/ProductSelection.h"
#include "state/FinderAccess.h"
#include "state/Page.h"
#include "state/PageFlow.h"

#include <memory>
#include <string>
#include <vector>

namespace corvellane {

struct ScriptExecution;

/// The one state object of a run of the installer, and everything that writes it. Made as a `std::shared_ptr`; main
/// thread only. The background work it starts keeps it alive until that work's results have been written.
///
/// Observers of `objectWillChange` are called before each store of an observable field; they schedule a redraw that
/// reads the new state later.
class AppSettings : public std::enable_shared_from_this<AppSettings> {
public:
    explicit AppSettings(const Platform& platform);
    AppSettings(const AppSettings&) = delete;
    AppSettings& operator=(const AppSettings&) = delete;
    virtual ~AppSettings() = default;

    Signal objectWillChange;

    Observable<Page> currentPage{objectWillChange, Page::intro};
    Observable<ProductSelection> products{objectWillChange, {}};
    /// What the last probe of the automation permission found.
    Observable<FinderAccess> accessType{objectWillChange, FinderAccess::unknown};
    Observable<bool> agreeWithTerms{objectWillChange, false};
    Observable<bool> showLicenseAlert{objectWillChange, false};
    Observable<bool> showPermanentlyAlert{objectWillChange, false};
    Observable<bool> showFinderAlert{objectWillChange, false};
    /// Stays set once an installation has failed.
    Observable<bool> completedWithErrors{objectWillChange, false};
    Observable<bool> showLogDetailsWindow{objectWillChange, false};
    Pasteboard& pasteboard;
    /// The failed installation's message. Storing it announces nothing.
    Snapshot<std::string> logDetailsStr;

    Alert visibleAlert() const;

    /// Whether at least one product is ticked.
    virtual bool selectedExist() const;
    /// Empties `products`, then fills it from the resource folder.
    virtual void refreshProducts();
    /// The forward button.
    virtual void nextAction();
    /// Ends the program, without confirmation.
    virtual void terminateApp();
    /// The agreement alert's "Agree".
    virtual void agreeWithLicense();
    virtual void selectAll();
    /// The products of the resource folder, all ticked; none, and a line on the console, when they cannot be listed.
    virtual ProductSelection productsToInstall();

    void goBack();
    void toggleProduct(const std::string& location);
    /// The agreement alert's "Read License".
    void closeLicenseAlert();
    /// The install confirmation's "Cancel".
    void closeInstallConfirmation();
    /// The install confirmation's "Install".
    void confirmInstallation();
    void toggleLogDetails();
    void copyLogDetails();
    void openAutomationSettings();

    /// Where an installation writes to.
    HostPaths hostPaths() const;
    /// Composes the script for the ticked products, prints it and runs it.
    void installSelectedProducts();
    /// The paths of the ticked products' elements, product by product in display order.
    std::vector<std::string> elementsToCopy();
    /// Runs an install script in the background and blocks until it has ended. The fields that its outcome writes are
    /// written later, from the main queue.
    void performScript(std::string script);
    /// Runs the automation probe in the background and blocks until it has ended; later, from the main queue, its
    /// answer installs or raises the permission alert.
    void checkAccess();

private:
    using Completion = void (AppSettings::*)(const ScriptExecution&);

    void runInBackground(std::string source, Completion completion);
    void applyOutcome(const ScriptExecution& execution);
    void applyProbe(const ScriptExecution& execution);
    /// Says on the console why there are none.
    std::vector<std::string> foldersOrNone(Expected<std::vector<std::string>> folders);

    Platform platform_;
    Product product_;
};

} // namespace corvellane
