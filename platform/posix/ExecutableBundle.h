#pragma once

#include "platform/Resources.h"

namespace corvellane {

/// The folder the program was installed as: the executable lies in a folder of it, what comes with it in "Resources"
/// beside that folder. It may be moved as a whole and be started through a link.
class ExecutableBundle : public Resources {
public:
    /// `executable` is the path of the running program; without resources when the system does not say where that lies.
    explicit ExecutableBundle(std::optional<std::string> executable);

    /// The path of the program `name` beside the executable; absent when the system does not say where that lies.
    std::optional<std::string> program(const std::string& name) const;

    std::optional<std::string> folder(const std::string& name) const override;
    std::optional<std::string> file(const std::string& baseName, const std::string& extension) const override;

private:
    std::optional<std::string> executable_;
};

} // namespace corvellane
