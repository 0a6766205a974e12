#pragma once

#include <optional>
#include <string>

namespace corvellane {

/// The files that come with the program. Any thread.
class Resources {
public:
    virtual ~Resources() = default;

    /// The path of the folder `name` in the resource folder, whether it exists or not; absent when the platform
    /// reports no resource folder.
    virtual std::optional<std::string> folder(const std::string& name) const = 0;

    /// The path of the existing resource `baseName`.`extension`; absent when there is none.
    virtual std::optional<std::string> file(const std::string& baseName, const std::string& extension) const = 0;
};

} // namespace corvellane
