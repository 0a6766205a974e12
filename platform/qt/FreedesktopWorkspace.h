#pragma once

#include "platform/qt/QtWorkspace.h"

namespace corvellane {

/// A desktop that registers programs for schemes as the MIME type "x-scheme-handler/SCHEME" (shared MIME info and MIME
/// applications specifications of freedesktop.org).
class FreedesktopWorkspace : public QtWorkspace {
public:
    bool openUrl(const std::string& url) override;
};

} // namespace corvellane
