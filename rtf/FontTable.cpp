#include "rtf/FontTable.h"

#include "rtf/CodePage.h"
#include "rtf/FontFace.h"

#include <string_view>

namespace corvellane::rtf {
namespace {

std::string_view trimmed(std::string_view name)
{
    const std::size_t begin = name.find_first_not_of(" \t");
    return begin == std::string_view::npos ? std::string_view{}
                                           : name.substr(begin, name.find_last_not_of(" \t") - begin + 1);
}

/// Beside the one of text that names none.
constexpr std::size_t mostFonts = 4096;

FontLanguage languageOfPage(int page)
{
    switch (page) {
    case 932:
    case 10001:
        return FontLanguage::japanese;
    case 936:
    case 10008:
    case 54936:
        return FontLanguage::simplifiedChinese;
    case 950:
    case 10002:
        return FontLanguage::traditionalChinese;
    case 949:
    case 1361:
    case 10003:
        return FontLanguage::korean;
    default:
        return FontLanguage::other;
    }
}

} // namespace

FontTable::FontTable()
{
    fonts_.push_back({.family = familyIndex({.name = "Helvetica", .alternative = {}})});
}

void FontTable::beginEntry(std::int32_t number)
{
    finishEntry();
    entryBegun_ = true;
    number_ = number;
    charset_ = 1;
    codePage_ = 0;
    kind_ = FontClass::unknown;
}

int FontTable::entryCodePage() const
{
    return codePage_ != 0 ? codePage_ : codePageOfCharset(charset_);
}

void FontTable::finishEntry()
{
    if (std::exchange(entryBegun_, false) && fonts_.size() <= mostFonts) {
        const FontFace face = fontFaceOf(withoutCharsetMark(trimmed(name_)));
        Font font{.family = 0, .bold = face.bold, .italic = face.italic, .codePage = entryCodePage()};
        if (!face.family.empty()) {
            font.family = familyIndex({.name = face.family,
                .alternative = std::string(trimmed(alternative_)),
                .kind = kind_,
                .language = languageOfPage(font.codePage)});
        }
        if (face.family == "Symbol") {
            font.codePage = symbolPage;
        } else if (face.family == "Wingdings") {
            font.codePage = wingdingsPage;
        }
        fonts_.push_back(font);
        indices_[number_] = static_cast<std::int32_t>(fonts_.size()) - 2;
    }
    name_.clear();
    alternative_.clear();
}

std::int32_t FontTable::find(std::int32_t number) const
{
    const auto found = indices_.find(number);
    return found == indices_.end() ? -1 : found->second;
}

/// A family of one name may be made for several languages.
std::uint32_t FontTable::familyIndex(FontFamily family)
{
    const std::string key = family.name + static_cast<char>('0' + static_cast<int>(family.language));
    const auto [place, isNew] = familyIndices_.try_emplace(key, static_cast<std::uint32_t>(families_.size()));
    if (isNew) {
        families_.push_back(std::move(family));
    }
    return place->second;
}

} // namespace corvellane::rtf
