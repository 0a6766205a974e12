#pragma once

#include "platform/Workspace.h"

namespace corvellane {

/// The desktop, which registers programs for schemes as the MIME type "x-scheme-handler/SCHEME" (shared MIME info and
/// MIME applications specifications of freedesktop.org).
class QtWorkspace : public Workspace {
public:
    bool openUrl(const std::string& url) override;
};

} // namespace corvellane
