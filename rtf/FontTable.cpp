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

} // namespace

FontTable::FontTable()
{
    fonts_.push_back({.family = familyIndex("Helvetica")});
}

void FontTable::beginEntry(std::int32_t number)
{
    finishEntry();
    entryBegun_ = true;
    number_ = number;
    charset_ = 1;
    codePage_ = 0;
}

int FontTable::entryCodePage() const
{
    return codePage_ != 0 ? codePage_ : codePageOfCharset(charset_);
}

void FontTable::finishEntry()
{
    if (entryBegun_) {
        const FontFace face = fontFaceOf(withoutCharsetMark(trimmed(name_)));
        Font font{
            familyIndex(face.family.empty() ? families_[0] : face.family), face.bold, face.italic, entryCodePage()};
        if (face.family == "Symbol") {
            font.codePage = symbolPage;
        } else if (face.family == "Wingdings") {
            font.codePage = wingdingsPage;
        }
        fonts_.push_back(font);
        indices_[number_] = static_cast<std::int32_t>(fonts_.size()) - 2;
    }
    entryBegun_ = false;
    name_.clear();
}

std::int32_t FontTable::find(std::int32_t number) const
{
    const auto found = indices_.find(number);
    return found == indices_.end() ? -1 : found->second;
}

std::uint32_t FontTable::familyIndex(const std::string& family)
{
    const auto [place, isNew] = familyIndices_.try_emplace(family, static_cast<std::uint32_t>(families_.size()));
    if (isNew) {
        families_.push_back(family);
    }
    return place->second;
}

} // namespace corvellane::rtf
