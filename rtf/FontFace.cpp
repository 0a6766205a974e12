#include "rtf/FontFace.h"

#include <algorithm>
#include <array>

namespace corvellane::rtf {
namespace {

struct StyleWord {
    std::string_view word;
    bool bold;
    bool italic;
};

/// None stands after one that it begins with.
constexpr auto styleWords = std::to_array<StyleWord>({
    {"Regular", false, false},
    {"Roman", false, false},
    {"Book", false, false},
    {"Plain", false, false},
    {"Normal", false, false},
    {"Medium", false, false},
    {"Light", false, false},
    {"Thin", false, false},
    {"Ultra", false, false},
    {"Extra", false, false},
    {"MT", false, false},
    {"Bold", true, false},
    {"Semibold", true, false},
    {"SemiBold", true, false},
    {"Demi", true, false},
    {"Heavy", true, false},
    {"Black", true, false},
    {"Italic", false, true},
    {"Oblique", false, true},
    {"It", false, true},
    {"Obl", false, true},
});

struct FamilyName {
    std::string_view postScript;
    std::string_view family;
};

constexpr auto familyNames = std::to_array<FamilyName>({
    {"AmericanTypewriter", "American Typewriter"},
    {"ArialMT", "Arial"},
    {"ArialNarrow", "Arial Narrow"},
    {"BookAntiqua", "Book Antiqua"},
    {"BookmanOldStyle", "Bookman Old Style"},
    {"CenturyGothic", "Century Gothic"},
    {"ComicSansMS", "Comic Sans MS"},
    {"CourierNewPS", "Courier New"},
    {"CourierNewPSMT", "Courier New"},
    {"GillSans", "Gill Sans"},
    {"HelveticaNeue", "Helvetica Neue"},
    {"HoeflerText", "Hoefler Text"},
    {"LucidaGrande", "Lucida Grande"},
    {"MarkerFelt", "Marker Felt"},
    {"PTSans", "PT Sans"},
    {"PTSerif", "PT Serif"},
    {"SymbolMT", "Symbol"},
    {"TimesNewRomanPS", "Times New Roman"},
    {"TimesNewRomanPSMT", "Times New Roman"},
    {"TrebuchetMS", "Trebuchet MS"},
});

constexpr auto charsetMarks = std::to_array<std::string_view>({
    " CE",
    " CYR",
    " Cyr",
    " Greek",
    " TUR",
    " Tur",
    " Baltic",
    " (Hebrew)",
    " (Arabic)",
    " (Vietnamese)",
    " (Thai)",
});

std::string_view familyOf(std::string_view postScript)
{
    const auto* const found = std::ranges::find(familyNames, postScript, &FamilyName::postScript);
    return found == familyNames.end() ? postScript : found->family;
}

/// Takes the words of a style off one by one; false when one of them is no word of a style.
bool readStyle(std::string_view style, FontFace& face)
{
    while (!style.empty()) {
        const auto* const found
            = std::ranges::find_if(styleWords, [&](auto& row) { return style.starts_with(row.word); });
        if (found == styleWords.end()) {
            return false;
        }
        face.bold = face.bold || found->bold;
        face.italic = face.italic || found->italic;
        style.remove_prefix(found->word.size());
    }
    return true;
}

} // namespace

FontFace fontFaceOf(std::string_view name)
{
    const std::size_t dash = name.find('-');
    FontFace face;
    if (dash != std::string_view::npos && dash > 0 && readStyle(name.substr(dash + 1), face)) {
        face.family = familyOf(name.substr(0, dash));
        return face;
    }
    return {.family = std::string(familyOf(name))};
}

std::string_view withoutCharsetMark(std::string_view family)
{
    for (const std::string_view mark : charsetMarks) {
        if (family.size() > mark.size() && family.ends_with(mark)) {
            return family.substr(0, family.size() - mark.size());
        }
    }
    return family;
}

} // namespace corvellane::rtf
