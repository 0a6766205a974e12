#include "base/SizeInWords.h"

#include <array>
#include <cstddef>

namespace corvellane {

std::string sizeInWords(std::uintmax_t bytes)
{
    if (bytes < 1000) {
        return std::to_string(bytes) + (bytes == 1 ? " byte" : " bytes");
    }
    constexpr std::array units{" kB", " MB", " GB", " TB"};
    std::size_t unit = 0;
    std::uintmax_t tenths = (bytes + 99) / 100;
    for (; tenths >= 10000 && unit + 1 < units.size(); ++unit) {
        tenths = (tenths + 999) / 1000;
    }
    return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10) + units[unit];
}

} // namespace corvellane
