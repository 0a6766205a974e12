#pragma once

#include <string>
#include <vector>

namespace corvellane {

enum class SearchDirectory { applications = 1, applicationSupport = 14 };
enum class SearchDomain { user = 1, local = 2 };

/// The well-known folders of the system. Any thread.
class StandardFolders {
public:
    virtual ~StandardFolders() = default;

    /// Absolute paths without a trailing "/", the preferred one first, the user's home already filled in; may be
    /// empty. The folders need not exist.
    virtual std::vector<std::string> searchPaths(SearchDirectory directory, SearchDomain domain) const = 0;
};

} // namespace corvellane
