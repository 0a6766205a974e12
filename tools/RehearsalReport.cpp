#include "platform/posix/StreamConsole.h"
#include "tools/Rehearsal.h"

namespace corvellane {

PayloadReport Rehearsal::report() const
{
    return reportPayload(*system_.files, productsFolder_, settings_->products.get(), settings_->hostPaths());
}

PayloadReport rehearsedPayload(const std::string& productsFolder)
{
    System system;
    system.console = std::make_shared<StreamConsole>(stderr);
    return Rehearsal(system, productsFolder, "").report();
}

} // namespace corvellane
