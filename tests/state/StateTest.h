#pragma once

#include "base/PathNames.h"
#include "state/AppSettings.h"
#include "tests/FakePlatform.h"

#include <gmock/gmock.h>

#include <functional>

namespace corvellane {

/// The state in a small world whose journal has a line for every announced write: all fields as they were before it.
class StateTest : public testing::Test {
protected:
    /// What happens from the operation's call until the main queue is empty, and then the state.
    template <typename Operation, typename... Arguments>
    Journal after(Operation operation, const Arguments&... arguments)
    {
        platform.journal.clear();
        std::invoke(operation, *settings, arguments...);
        platform.dispatcher.runMainQueue();
        platform.journal.push_back("now " + fields());
        return platform.journal;
    }

    using Steps = std::vector<std::pair<void (AppSettings::*)(), Journal>>;

    void expectSteps(const Steps& steps)
    {
        for (const auto& [operation, journal] : steps) {
            EXPECT_EQ(after(operation), journal);
        }
    }

    /// The page, and of the other fields, in their order, those that are not as at the beginning.
    std::string fields() const
    {
        std::string text(nameOf(settings->currentPage.get()));
        const ProductSelection& products = settings->products.get();
        for (std::size_t index = 0; index < products.ticks().size(); ++index) {
            text += products.ticks()[index] ? " +" : " -";
            text += lastPathComponent((*products.locations())[index]);
        }
        if (settings->accessType.get() != FinderAccess::unknown) {
            text.append(" access ").append(rawValue(settings->accessType.get()));
        }
        text += settings->agreeWithTerms.get() ? " agreed" : "";
        text += settings->showLicenseAlert.get() ? " licenseAlert" : "";
        text += settings->showPermanentlyAlert.get() ? " permanentlyAlert" : "";
        text += settings->showFinderAlert.get() ? " finderAlert" : "";
        text += settings->completedWithErrors.get() ? " withErrors" : "";
        text += settings->showLogDetailsWindow.get() ? " logWindow" : "";
        return settings->logDetailsStr->empty() ? text : text + " log " + *settings->logDetailsStr;
    }

    FakePlatform platform;
    std::shared_ptr<AppSettings> settings = std::make_shared<AppSettings>(platform.services());
    Subscription changes
        = settings->objectWillChange.subscribe([this] { platform.journal.push_back("change " + fields()); });
};

} // namespace corvellane
