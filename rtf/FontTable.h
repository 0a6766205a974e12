#pragma once

#include "rtf/AttributedText.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace corvellane::rtf {

/// A font of the table, resolved.
struct Font {
    /// Index into FontTable::families.
    std::uint32_t family = 0;
    bool bold = false;
    bool italic = false;
    /// The number of the font's code page; 0 for the document's.
    int codePage = 0;
};

/// RTF's font table: entries are begun, described and finished one after the other, grouped or not. Of more than 4,096
/// only the first count.
class FontTable {
public:
    FontTable();

    void beginEntry(std::int32_t number);
    void setCharset(std::int32_t charset) { charset_ = charset; }
    void setCodePage(std::int32_t page) { codePage_ = page; }
    void setClass(FontClass kind) { kind_ = kind; }

    /// The code page of the name that is being written.
    int entryCodePage() const;

    /// Where the entry's name is written, in UTF-8, and that of the font to take in its place.
    std::string& entryName() { return name_; }
    std::string& entryAlternative() { return alternative_; }

    void finishEntry();

    /// The index of the font of that number; -1 when there is none.
    std::int32_t find(std::int32_t number) const;

    /// For -1 the font of text that names none: Helvetica in the document's code page.
    const Font& font(std::int32_t index) const { return fonts_[static_cast<std::uint32_t>(index) + 1U]; }

    /// All families; nothing may be called after it.
    std::vector<FontFamily> takeFamilies() { return std::move(families_); }

private:
    std::uint32_t familyIndex(FontFamily family);

    std::vector<Font> fonts_;
    std::vector<FontFamily> families_;
    std::unordered_map<std::string, std::uint32_t> familyIndices_;
    std::unordered_map<std::int32_t, std::int32_t> indices_;
    bool entryBegun_ = false;
    std::int32_t number_ = 0;
    std::int32_t charset_ = 1;
    std::int32_t codePage_ = 0;
    FontClass kind_ = FontClass::unknown;
    std::string name_;
    std::string alternative_;
};

} // namespace corvellane::rtf
