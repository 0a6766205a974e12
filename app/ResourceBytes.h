#pragma once

#include "platform/Files.h"
#include "platform/Resources.h"

#include <cstddef>
#include <string>

namespace corvellane {

/// All bytes of the resource `baseName`.`extension`; none where there is none of at most `largest` bytes that can be
/// read.
inline std::string bytesOf(const Resources& resources, const Files& files, const std::string& baseName,
    const std::string& extension, std::size_t largest)
{
    const auto path = resources.file(baseName, extension);
    return path ? files.read(*path, largest).value_or("") : "";
}

} // namespace corvellane
