#pragma once

#include "platform/StandardFolders.h"

namespace corvellane {

/// The folders that the host applications keep on this system: "/Applications", "/Library/Application Support" and
/// the real user's home followed by "/Library/Application Support".
class PosixStandardFolders : public StandardFolders {
public:
    /// `prefix` stands in front of every folder: a scratch folder's path without a trailing "/", or nothing.
    explicit PosixStandardFolders(std::string prefix = {})
        : prefix_(std::move(prefix))
    {
    }

    std::vector<std::string> searchPaths(SearchDirectory directory, SearchDomain domain) const override;

private:
    std::string prefix_;
};

} // namespace corvellane
