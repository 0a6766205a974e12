#pragma once

#include "app/System.h"
#include "platform/posix/QueueDispatcher.h"
#include "state/AppSettings.h"
#include "tools/PayloadReport.h"

#include <string>

namespace corvellane {

/// Gives a system what a rehearsal has of its own: the resources lie in and beside a products folder, wherever its
/// maker keeps it, the host folders below a scratch folder; nobody is asked for a password, nothing is opened, and no
/// file manager takes requests. What is installed really is, by the present user. Both folders are absolute paths
/// without a trailing "/"; `into` may be empty, which leaves the host folders where the system has them.
///
/// Where the system has a script service of its own, which would ask for a password, every installation fails and says
/// so.
void makeRehearsal(System& system, const std::string& productsFolder, const std::string& into);

/// The installer's own state on a rehearsal's services, without a window.
class Rehearsal {
public:
    Rehearsal(System system, const std::string& productsFolder, const std::string& into);

    /// The state, filled from the products folder.
    AppSettings& settings() { return *settings_; }

    /// What installing the ticked products would do. Nothing is changed.
    PayloadReport report() const;

    /// Goes through the wizard's pages as a person would who agrees to everything, and returns when it has ended.
    void install();

private:
    System system_;
    std::string productsFolder_;
    std::shared_ptr<QueueDispatcher> dispatcher_ = std::make_shared<QueueDispatcher>();
    std::shared_ptr<AppSettings> settings_;
};

/// What installing every product in the folder would do. What the wizard itself says goes to standard error.
PayloadReport rehearsedPayload(const std::string& productsFolder);

} // namespace corvellane
