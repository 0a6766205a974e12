#pragma once

namespace corvellane::script {

/// The desktop's file manager, as the receiver of automation requests.
class FileManager {
public:
    virtual ~FileManager() = default;

    /// Whether it answers requests of this program. May take up to a quarter of a second. Any thread.
    virtual bool acceptsRequests() = 0;
};

} // namespace corvellane::script
