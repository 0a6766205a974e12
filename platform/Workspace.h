#pragma once

#include <string>

namespace corvellane {

/// The desktop the program runs on. Main thread.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// Hands `url` to the program that is registered for its scheme; false when there is none.
    virtual bool openUrl(const std::string& url) = 0;
};

} // namespace corvellane
