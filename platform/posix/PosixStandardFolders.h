#pragma once

#include "platform/StandardFolders.h"
#include "platform/posix/UserAccount.h"

namespace corvellane {

/// The folders that the host applications keep on this system: "/Applications", "/Library/Application Support" and
/// the person's home followed by "/Library/Application Support".
class PosixStandardFolders : public StandardFolders {
public:
    /// `prefix` stands in front of every folder: a scratch folder's path without a trailing "/", or nothing.
    explicit PosixStandardFolders(std::string prefix = {}, const UserAccount& person = realUser())
        : prefix_(std::move(prefix))
        , home_(person.home)
    {
    }

    std::vector<std::string> searchPaths(SearchDirectory directory, SearchDomain domain) const override;

private:
    std::string prefix_;
    std::string home_;
};

} // namespace corvellane
