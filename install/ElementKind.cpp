#include "install/ElementKind.h"

#include "base/Enumerators.h"

#include <algorithm>

namespace corvellane {
namespace {

constexpr std::array kinds = enumerators<ElementKind, nameOf>;

static_assert(traitsOf(kinds.back()).word.empty(), "the last kind takes what no other does");

bool contains(std::string_view text, std::string_view word)
{
    return text.find(word) != std::string_view::npos;
}

} // namespace

ElementKind kindOf(std::string_view elementPath)
{
    return *std::ranges::find_if(kinds, [&](auto kind) { return contains(elementPath, traitsOf(kind).word); });
}

LightroomGeneration generationOf(std::string_view elementPath)
{
    if (contains(elementPath, "Velvetgrain 3")) {
        return {"3", "48C1AC0C-58BB-4E36-82DD-F146866B8164"};
    }
    return {"4", "E70E900E-6A66-4882-B59A-2B05764B1430"};
}

std::string supersededSuffix(std::string_view elementName)
{
    return contains(elementName, "2") ? "2" : "";
}

} // namespace corvellane
