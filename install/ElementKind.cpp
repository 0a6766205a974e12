#include "install/ElementKind.h"

namespace corvellane {
namespace {

bool contains(std::string_view text, std::string_view word)
{
    return text.find(word) != std::string_view::npos;
}

} // namespace

ElementKind kindOf(std::string_view elementPath)
{
    if (contains(elementPath, "Lightroom")) {
        return ElementKind::lightroom;
    }
    return contains(elementPath, "Tessellane") ? ElementKind::video : ElementKind::photo;
}

LightroomGeneration generationOf(std::string_view elementPath)
{
    if (contains(elementPath, "Velvetgrain 3")) {
        return {"3", "48C1AC0C-58BB-4E36-82DD-F146866B8164"};
    }
    return {"4", "E70E900E-6A66-4882-B59A-2B05764B1430"};
}

std::string_view supersededSuffix(std::string_view elementName)
{
    return contains(elementName, "2") ? "2" : "";
}

} // namespace corvellane
