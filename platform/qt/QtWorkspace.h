#pragma once

#include "platform/Workspace.h"

namespace corvellane {

/// The desktop as Qt knows it.
class QtWorkspace : public Workspace {
public:
    bool openUrl(const std::string& url) override;
};

} // namespace corvellane
