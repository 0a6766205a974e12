#include "view/qt/FontSubstitutes.h"

#include <QString>

#include <algorithm>
#include <array>

namespace corvellane::view {

namespace {

constexpr auto sans = "Liberation Sans|Arimo|Nimbus Sans|Noto Sans|DejaVu Sans";
constexpr auto narrow = "Liberation Sans Narrow|Nimbus Sans Narrow|Liberation Sans|DejaVu Sans Condensed";
constexpr auto wide = "DejaVu Sans|Bitstream Vera Sans|Noto Sans|Liberation Sans";
constexpr auto serif = "Liberation Serif|Tinos|Nimbus Roman|Noto Serif|DejaVu Serif";
constexpr auto fixed = "Liberation Mono|Cousine|Nimbus Mono PS|DejaVu Sans Mono";
constexpr auto codeFace = "DejaVu Sans Mono|Noto Sans Mono|Liberation Mono";
constexpr auto gothicJapanese = "Noto Sans CJK JP|IPAexGothic|IPAPGothic|TakaoPGothic|VL PGothic|Liberation Sans";
constexpr auto minchoJapanese
    = "Noto Serif CJK JP|IPAexMincho|IPAPMincho|TakaoPMincho|Noto Sans CJK JP|Liberation Serif";
constexpr auto heiSimplified = "Noto Sans CJK SC|WenQuanYi Micro Hei|WenQuanYi Zen Hei|Liberation Sans";
constexpr auto songSimplified = "Noto Serif CJK SC|AR PL UMing CN|Noto Sans CJK SC|Liberation Serif";
constexpr auto heiTraditional = "Noto Sans CJK TC|WenQuanYi Micro Hei|Liberation Sans";
constexpr auto mingTraditional = "Noto Serif CJK TC|AR PL UMing TW|Noto Sans CJK TC|Liberation Serif";
constexpr auto gothicKorean = "Noto Sans CJK KR|NanumGothic|UnDotum|Liberation Sans";
constexpr auto batangKorean = "Noto Serif CJK KR|NanumMyeongjo|UnBatang|Liberation Serif";
constexpr auto symbols = "DejaVu Sans|Noto Sans Symbols|Noto Sans Symbols2|Noto Sans Math|OpenSymbol|Symbola";

struct Substitutes {
    /// How the family's name begins, in small letters and digits alone.
    std::string_view beginning;
    const char* families;
};

/// The first row that fits counts.
constexpr auto rows = std::to_array<Substitutes>({
    {"arialnarrow", narrow},
    {"arialunicode", gothicJapanese},
    {"arial", sans},
    {"helveticanarrow", narrow},
    {"helvetica", sans},
    {"sfpro", sans},
    {"timesnewroman", serif},
    {"times", serif},
    {"couriernew", fixed},
    {"courier", fixed},
    {"verdana", wide},
    {"geneva", wide},
    {"tahoma", wide},
    {"lucidaconsole", codeFace},
    {"lucida", wide},
    {"monaco", codeFace},
    {"menlo", codeFace},
    {"consolas", codeFace},
    {"sfmono", codeFace},
    {"calibri", "Carlito|Liberation Sans|DejaVu Sans"},
    {"cambria", "Caladea|Liberation Serif|DejaVu Serif"},
    {"georgia", "Gelasio|DejaVu Serif|Liberation Serif"},
    {"palatino", "P052|TeX Gyre Pagella|Liberation Serif"},
    {"bookantiqua", "P052|TeX Gyre Pagella|Liberation Serif"},
    {"bookman", "URW Bookman|TeX Gyre Bonum|DejaVu Serif"},
    {"centuryschoolbook", "C059|TeX Gyre Schola|Liberation Serif"},
    {"centurygothic", "URW Gothic|TeX Gyre Adventor|DejaVu Sans"},
    {"avantgarde", "URW Gothic|TeX Gyre Adventor|DejaVu Sans"},
    {"garamond", "EB Garamond|Liberation Serif"},
    {"hoefler", serif},
    {"baskerville", serif},
    {"hiraginosansgb", heiSimplified},
    {"hiraginomin", minchoJapanese},
    {"hiragino", gothicJapanese},
    {"msgothic", gothicJapanese},
    {"mspgothic", gothicJapanese},
    {"meiryo", gothicJapanese},
    {"yugothic", gothicJapanese},
    {"osaka", gothicJapanese},
    {"msmincho", minchoJapanese},
    {"mspmincho", minchoJapanese},
    {"yumin", minchoJapanese},
    {"pingfangtc", heiTraditional},
    {"pingfanghk", heiTraditional},
    {"heititc", heiTraditional},
    {"microsoftjhenghei", heiTraditional},
    {"pingfang", heiSimplified},
    {"heiti", heiSimplified},
    {"stheiti", heiSimplified},
    {"simhei", heiSimplified},
    {"microsoftyahei", heiSimplified},
    {"songtitc", mingTraditional},
    {"mingliu", mingTraditional},
    {"pmingliu", mingTraditional},
    {"songti", songSimplified},
    {"stsong", songSimplified},
    {"simsun", songSimplified},
    {"nsimsun", songSimplified},
    {"applesdgothic", gothicKorean},
    {"malgun", gothicKorean},
    {"gulim", gothicKorean},
    {"dotum", gothicKorean},
    {"batang", batangKorean},
    {"symbol", symbols},
    {"wingdings", symbols},
    {"webdings", symbols},
    {"zapfdingbats", symbols},
});

std::string beginningOf(std::string_view family)
{
    std::string letters;
    for (const char byte : family) {
        const bool upper = byte >= 'A' && byte <= 'Z';
        if (upper || (byte >= 'a' && byte <= 'z') || (byte >= '0' && byte <= '9')) {
            letters += static_cast<char>(upper ? byte - 'A' + 'a' : byte);
        }
    }
    return letters;
}

const char* guessFor(const std::string& letters)
{
    const auto holds = [&](std::string_view word) { return letters.find(word) != std::string::npos; };
    if (holds("mono") || holds("typewriter") || holds("code") || holds("console")) {
        return codeFace;
    }
    return (holds("serif") && !holds("sans")) || holds("roman") ? serif : sans;
}

} // namespace

QStringList substitutesFor(std::string_view family)
{
    const std::string letters = beginningOf(family);
    const auto* const row = std::ranges::find_if(rows, [&](auto& each) { return letters.starts_with(each.beginning); });
    const char* const families = row == rows.end() ? guessFor(letters) : row->families;
    QStringList result = QString::fromLatin1(families).split('|');
    if (families != symbols && !family.empty()) {
        result.prepend(QString::fromUtf8(family.data(), static_cast<qsizetype>(family.size())));
    }
    return result;
}

} // namespace corvellane::view
