#pragma once

#include <string_view>

namespace corvellane {

/// The script that finds out whether the file manager takes requests: it answers 1 or 0.
constexpr std::string_view accessProbeScript = R"(            try
            tell application "Finder"
            set pathAppSupp to path to application support
            return 1
            end tell
            on error errMsg
            return 0
            end try)";

/// Where the desktop's settings let the user allow requests to the file manager.
constexpr std::string_view automationSettingsUrl
    = "x-apple.systempreferences:com.apple.preference.security?Privacy_Automation";

} // namespace corvellane
