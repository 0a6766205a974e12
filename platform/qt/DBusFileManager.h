#pragma once

#include "platform/script/FileManager.h"

namespace corvellane {

/// The file manager behind "org.freedesktop.FileManager1" on the session bus (File Manager D-Bus Interface of
/// freedesktop.org). Asking may start it; where there is no session bus, the answer is no at once.
class DBusFileManager : public script::FileManager {
public:
    bool acceptsRequests() override;
};

} // namespace corvellane
