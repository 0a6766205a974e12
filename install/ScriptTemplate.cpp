#include "install/ScriptTemplate.h"

#include <algorithm>

namespace corvellane {
namespace {

/// In the order of `Place`.
constexpr std::array<std::string_view, placeCount> placeNames
    = {"APP", "MC", "CC", "LR", "P", "N", "D", "ID", "S", "echo APP N", "Lua APP N"};

Place placeNamed(std::string_view name)
{
    const auto* found = std::find(placeNames.begin(), placeNames.end(), name);
    return static_cast<Place>(found - placeNames.begin());
}

} // namespace

ScriptTemplate::ScriptTemplate(std::string_view lines)
{
    for (auto open = lines.find('['); open != std::string_view::npos; open = lines.find('[')) {
        const auto close = lines.find(']', open);
        segments_.push_back({lines.substr(0, open), placeNamed(lines.substr(open + 1, close - open - 1))});
        lines.remove_prefix(close + 1);
    }
    ending_ = lines;
}

void ScriptTemplate::appendTo(std::string& script, const Fillings& fillings) const
{
    for (const Segment& segment : segments_) {
        script.append(segment.text).append(fillings[segment.place]);
    }
    script.append(ending_);
}

} // namespace corvellane
