#include "tools/ProductNames.h"

#include "base/PathNames.h"
#include "tools/PrintableText.h"
#include "tools/UnicodeNames.h"

#include <algorithm>

namespace corvellane {

const std::string* productNamed(const std::vector<std::string>& locations, const std::string& name)
{
    const auto exact = std::ranges::find(locations, name, &lastPathComponent);
    const auto found = exact != locations.end() ? exact : std::ranges::find_if(locations, [&](const auto& location) {
        const std::string own(lastPathComponent(location));
        return composed(own) == composed(name) || printable(own) == name;
    });
    return found == locations.end() ? nullptr : &*found;
}

} // namespace corvellane
