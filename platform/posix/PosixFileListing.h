#pragma once

#include "platform/FileListing.h"

namespace corvellane {

class PosixFileListing : public FileListing {
public:
    FolderListing list(const std::string& folder) const override;
};

} // namespace corvellane
