#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <memory>
#include <string_view>
#include <vector>

namespace corvellane::rtf {

/// The number of the page of Western Europe, which stands in for one that is unknown.
constexpr int westernPage = 1252;

/// A code page: what bytes of text stand for. The characters of bytes seen once are remembered.
class CodePage {
public:
    /// In place of a character: the bytes begin one but do not end it.
    static constexpr char32_t incomplete = 0x110000;
    /// In place of a character: no character begins with these bytes.
    static constexpr char32_t invalid = 0x110001;

    /// The page of that number in the numbering of the Windows code pages; null when it is unknown, or when the C
    /// library cannot convert from it.
    static std::unique_ptr<CodePage> open(int number);

    /// A page of one byte a character, given the characters from 0x20 on; all below are themselves.
    explicit CodePage(std::u32string_view charactersFromSpace);

    ~CodePage();
    CodePage(const CodePage&) = delete;
    CodePage& operator=(const CodePage&) = delete;
    CodePage(CodePage&&) = delete;
    CodePage& operator=(CodePage&&) = delete;

    /// The character that one to four bytes stand for, all together.
    char32_t decode(std::string_view bytes);

    /// The character that two bytes stand for.
    char32_t decode(char lead, char trail)
    {
        const std::size_t place = (static_cast<unsigned char>(lead) * 256U) + static_cast<unsigned char>(trail);
        const char32_t known = pairs_.empty() ? 0 : pairs_[place];
        return known != 0 ? known : convertPair(lead, trail);
    }

    char32_t decode(char byte) const { return singles_[static_cast<unsigned char>(byte)]; }

    /// All bytes below 0x80 are ASCII.
    bool hasAscii() const { return hasAscii_; }

    /// Some characters take several bytes.
    bool isMultiByte() const { return isMultiByte_; }

private:
    explicit CodePage(void* converter);
    static std::unique_ptr<CodePage> openWestern();
    char32_t convert(std::string_view bytes);
    char32_t convertPair(char lead, char trail);

    /// An iconv_t, or null where nothing is left to convert.
    void* converter_ = nullptr;
    bool hasAscii_ = false;
    bool isMultiByte_ = false;
    std::array<char32_t, 256> singles_{};
    /// By both bytes of a pair, the first being the high one; 0 where not yet known. Empty until the first pair.
    std::vector<char32_t> pairs_;
};

/// The code pages of a document, each opened when it is first asked for.
class CodePages {
public:
    /// Null for a page that cannot be had.
    CodePage* find(int number)
    {
        const auto [place, isNew] = pages_.try_emplace(number);
        if (isNew) {
            place->second = CodePage::open(number);
        }
        return place->second.get();
    }

    /// The page, or else the second one, or else ASCII.
    CodePage& findOr(int number, int substitute)
    {
        for (const int candidate : {number, substitute}) {
            if (CodePage* const page = find(candidate)) {
                return *page;
            }
        }
        return ascii_;
    }

private:
    std::map<int, std::unique_ptr<CodePage>> pages_;
    CodePage ascii_{
        U" !\"#$%&'()*+,-./0123456789:;<=>?@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`abcdefghijklmnopqrstuvwxyz{|}~"};
};

/// The pages of the Symbol and Wingdings fonts, beside those of the system.
constexpr int symbolPage = -1;
constexpr int wingdingsPage = -2;

/// The page of a font's character set (\fcharset of RTF 1.9.1); 0 for a set that leaves it to the document.
int codePageOfCharset(int charset);

} // namespace corvellane::rtf
