#include "rtf/CodePage.h"

#include "rtf/SymbolFonts.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <iconv.h>

namespace corvellane::rtf {
namespace {

struct PageName {
    int number;
    const char* name;
};

constexpr auto pageNames = std::to_array<PageName>({
    {437, "CP437"},
    {708, "ASMO-708"},
    {737, "CP737"},
    {775, "CP775"},
    {819, "ISO-8859-1"},
    {850, "CP850"},
    {852, "CP852"},
    {855, "CP855"},
    {857, "CP857"},
    {858, "CP858"},
    {860, "CP860"},
    {861, "CP861"},
    {862, "CP862"},
    {863, "CP863"},
    {864, "CP864"},
    {865, "CP865"},
    {866, "CP866"},
    {869, "CP869"},
    {874, "CP874"},
    {932, "CP932"},
    {936, "CP936"},
    {949, "CP949"},
    {950, "CP950"},
    {1250, "CP1250"},
    {1251, "CP1251"},
    {1253, "CP1253"},
    {1254, "CP1254"},
    {1255, "CP1255"},
    {1256, "CP1256"},
    {1257, "CP1257"},
    {1258, "CP1258"},
    {1361, "JOHAB"},
    {10000, "MACINTOSH"},
    {10001, "CP932"},
    {10002, "CP950"},
    {10003, "CP949"},
    {10007, "MAC-CYRILLIC"},
    {10008, "CP936"},
    {10029, "MAC-CENTRALEUROPE"},
    {20866, "KOI8-R"},
    {54936, "GB18030"},
    {65001, "UTF-8"},
});

/// Of the bytes from 0x80 on, those that are not the character of their own number.
constexpr std::array<char32_t, 0x20> westernCharacters{U'€', CodePage::invalid, U'‚', U'ƒ', U'„', U'…', U'†', U'‡',
    U'ˆ', U'‰', U'Š', U'‹', U'Œ', CodePage::invalid, U'Ž', CodePage::invalid, CodePage::invalid, U'‘', U'’', U'“', U'”',
    U'•', U'–', U'—', U'˜', U'™', U'š', U'›', U'œ', CodePage::invalid, U'ž', U'Ÿ'};

struct CharsetPage {
    int charset;
    int page;
};

constexpr auto charsetPages = std::to_array<CharsetPage>({
    {0, 1252},
    {77, 10000},
    {78, 10001},
    {79, 10003},
    {80, 10008},
    {81, 10002},
    {88, 10029},
    {89, 10007},
    {128, 932},
    {129, 949},
    {130, 1361},
    {134, 936},
    {136, 950},
    {161, 1253},
    {162, 1254},
    {163, 1258},
    {177, 1255},
    {178, 1256},
    {179, 1256},
    {180, 1256},
    {181, 1255},
    {186, 1257},
    {204, 1251},
    {222, 874},
    {238, 1250},
    {254, 437},
    {255, 850},
});

iconv_t handle(void* converter)
{
    return static_cast<iconv_t>(converter);
}

} // namespace

int codePageOfCharset(int charset)
{
    const auto* const found = std::ranges::find(charsetPages, charset, &CharsetPage::charset);
    return found == charsetPages.end() ? 0 : found->page;
}

/// Nearly every document is in this page, and has the C library load two converters for it that take longer than the
/// document.
std::unique_ptr<CodePage> CodePage::openWestern()
{
    std::unique_ptr<CodePage> page(new CodePage(nullptr));
    std::ranges::copy(westernCharacters, page->singles_.begin() + 0x80);
    for (char32_t code = 0xA0; code < page->singles_.size(); ++code) {
        page->singles_[code] = code;
    }
    return page;
}

std::unique_ptr<CodePage> CodePage::open(int number)
{
    if (number == symbolPage || number == wingdingsPage) {
        return std::make_unique<CodePage>(number == symbolPage ? symbolCharacters : wingdingsCharacters);
    }
    if (number == westernPage) {
        return openWestern();
    }
    const auto* const found = std::ranges::find(pageNames, number, &PageName::number);
    if (found == pageNames.end()) {
        return nullptr;
    }
    const iconv_t converter = iconv_open("UTF-32LE", found->name);
    // The handle that stands for failure is -1, which no pointer literal can say.
    if (reinterpret_cast<std::intptr_t>(converter) == -1) { // NOLINT(performance-no-int-to-ptr)
        return nullptr;
    }
    return std::unique_ptr<CodePage>(new CodePage(static_cast<void*>(converter)));
}

CodePage::CodePage(std::u32string_view charactersFromSpace)
{
    singles_.fill(replacementOfSymbols);
    for (char32_t code = 0; code < 0x20; ++code) {
        singles_[code] = code;
    }
    std::ranges::copy(charactersFromSpace, singles_.begin() + 0x20);
}

CodePage::CodePage(void* converter)
    : converter_(converter)
    , hasAscii_(true)
{
    for (char32_t code = 0; code < singles_.size(); ++code) {
        const char byte = static_cast<char>(code);
        singles_[code] = code < 0x80 ? code : convert({&byte, 1});
        isMultiByte_ = isMultiByte_ || singles_[code] == incomplete;
    }
}

CodePage::~CodePage()
{
    if (converter_ != nullptr) {
        iconv_close(handle(converter_));
    }
}

char32_t CodePage::decode(std::string_view bytes)
{
    if (bytes.size() == 2) {
        return decode(bytes[0], bytes[1]);
    }
    return bytes.size() == 1 ? decode(bytes[0]) : convert(bytes);
}

char32_t CodePage::convertPair(char lead, char trail)
{
    pairs_.resize(std::size_t{256} * 256);
    const std::array bytes{lead, trail};
    const char32_t code = convert({bytes.data(), bytes.size()});
    pairs_[(static_cast<unsigned char>(lead) * 256U) + static_cast<unsigned char>(trail)] = code;
    return code;
}

char32_t CodePage::convert(std::string_view bytes)
{
    if (converter_ == nullptr) {
        return invalid;
    }
    std::array<char, 4> in{};
    std::ranges::copy(bytes, in.begin());
    std::array<unsigned char, 16> out{};
    char* from = in.data();
    char* to = reinterpret_cast<char*>(out.data());
    std::size_t fromLeft = bytes.size();
    std::size_t toLeft = out.size();
    iconv(handle(converter_), nullptr, nullptr, nullptr, nullptr);
    const bool failed = iconv(handle(converter_), &from, &fromLeft, &to, &toLeft) == static_cast<std::size_t>(-1);
    if (failed) {
        return errno == EINVAL ? incomplete : invalid;
    }
    // A page with combining characters holds a letter back until it is asked for it.
    iconv(handle(converter_), nullptr, nullptr, &to, &toLeft);
    const bool single = toLeft + 4 == out.size();
    return single ? out[0] | char32_t{out[1]} << 8U | char32_t{out[2]} << 16U : invalid;
}

} // namespace corvellane::rtf
