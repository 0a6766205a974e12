#pragma once

#include "platform/Resources.h"

namespace corvellane {

/// The folder the program was installed as: the executable lies in "bin", what comes with it in "Resources" beside
/// that. It may be moved as a whole and be started through a link.
class ExecutableBundle : public Resources {
public:
    /// The bundle of the running program; without resources when the system does not say where that lies.
    ExecutableBundle();

    /// The path of the program `name` beside the executable.
    std::string program(const std::string& name) const;

    std::optional<std::string> folder(const std::string& name) const override;
    std::optional<std::string> file(const std::string& baseName, const std::string& extension) const override;

private:
    /// Without a trailing "/"; absent when the system does not say where the executable lies.
    std::optional<std::string> folder_;
};

} // namespace corvellane
