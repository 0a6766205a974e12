#pragma once

#include "state/AppSettings.h"
#include "tests/FakePlatform.h"
#include "tests/view/TreeSearch.h"
#include "ui/ContentView.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

namespace corvellane {

using namespace view;

/// The wizard's state and trees on a world without a window.
class WizardWorld : public testing::Test {
protected:
    View body() { return contentView.body(*settings); }

    void addProducts(const std::vector<std::string>& names)
    {
        for (const std::string& name : names) {
            platform.addProduct(name, {});
        }
        settings->refreshProducts();
    }

    FakePlatform platform;
    std::shared_ptr<AppSettings> settings = std::make_shared<AppSettings>(platform.services());
    ContentView contentView{platform.resources, platform.files, platform.console};
};

} // namespace corvellane
