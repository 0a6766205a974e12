#pragma once

#include <string>

namespace corvellane {

/// The general pasteboard of the desktop. Main thread.
class Pasteboard {
public:
    virtual ~Pasteboard() = default;

    virtual void clearContents() = 0;

    /// Puts `text` on the pasteboard as plain text; false when the platform refuses.
    virtual bool setString(const std::string& text) = 0;
};

} // namespace corvellane
