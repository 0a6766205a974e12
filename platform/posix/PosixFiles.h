#pragma once

#include "platform/Files.h"

namespace corvellane {

/// The file system of this machine.
class PosixFiles : public Files {
public:
    Expected<std::vector<FolderEntry>> list(const std::string& folder) const override;
    Expected<std::string> read(const std::string& path, std::size_t largest) const override;
};

} // namespace corvellane
