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
constexpr auto substitutes = std::to_array<Substitutes>({
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
    {"hiramin", minchoJapanese},
    {"hirakaku", gothicJapanese},
    {"kozmin", minchoJapanese},
    {"kozgo", gothicJapanese},
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
    {"dfkai", mingTraditional},
    {"biaukai", mingTraditional},
    {"lisong", mingTraditional},
    {"lihei", heiTraditional},
    {"songti", songSimplified},
    {"stsong", songSimplified},
    {"stfangsong", songSimplified},
    {"fangsong", songSimplified},
    {"stkaiti", songSimplified},
    {"kaiti", songSimplified},
    {"dengxian", heiSimplified},
    {"stxihei", heiSimplified},
    {"simsun", songSimplified},
    {"nsimsun", songSimplified},
    {"applesdgothic", gothicKorean},
    {"malgun", gothicKorean},
    {"gulim", gothicKorean},
    {"dotum", gothicKorean},
    {"batang", batangKorean},
    {"gungsuh", batangKorean},
    {"applemyungjo", batangKorean},
    {"applegothic", gothicKorean},
    {"symbol", symbols},
    {"wingdings", symbols},
    {"webdings", symbols},
    {"zapfdingbats", symbols},
});

/// How names in their own scripts begin; the first row that fits counts.
constexpr auto ownNames = std::to_array<Substitutes>({
    {"宋体", songSimplified},
    {"新宋体", songSimplified},
    {"仿宋", songSimplified},
    {"楷体", songSimplified},
    {"华文", songSimplified},
    {"黑体", heiSimplified},
    {"微软雅黑", heiSimplified},
    {"等线", heiSimplified},
    {"新細明體", mingTraditional},
    {"細明體", mingTraditional},
    {"標楷體", mingTraditional},
    {"微軟正黑體", heiTraditional},
    {"儷黑", heiTraditional},
    {"ＭＳ Ｐ明朝", minchoJapanese},
    {"ＭＳ 明朝", minchoJapanese},
    {"ＭＳ Ｐゴシック", gothicJapanese},
    {"ＭＳ ゴシック", gothicJapanese},
    {"游明朝", minchoJapanese},
    {"游ゴシック", gothicJapanese},
    {"メイリオ", gothicJapanese},
    {"ヒラギノ明朝", minchoJapanese},
    {"ヒラギノ", gothicJapanese},
    {"바탕", batangKorean},
    {"궁서", batangKorean},
    {"돋움", gothicKorean},
    {"굴림", gothicKorean},
    {"맑은 고딕", gothicKorean},
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

const char* ofLanguage(rtf::FontLanguage language, bool isSerif)
{
    switch (language) {
    case rtf::FontLanguage::japanese:
        return isSerif ? minchoJapanese : gothicJapanese;
    case rtf::FontLanguage::simplifiedChinese:
        return isSerif ? songSimplified : heiSimplified;
    case rtf::FontLanguage::traditionalChinese:
        return isSerif ? mingTraditional : heiTraditional;
    case rtf::FontLanguage::korean:
        return isSerif ? batangKorean : gothicKorean;
    case rtf::FontLanguage::other:
        break;
    }
    return isSerif ? serif : sans;
}

const char* guessFor(const rtf::FontFamily& family, const std::string& letters)
{
    const auto holds = [&](std::string_view word) { return letters.find(word) != std::string::npos; };
    if (holds("mono") || holds("typewriter") || holds("code") || holds("console")) {
        return codeFace;
    }
    if (family.language == rtf::FontLanguage::other && family.kind == rtf::FontClass::fixed) {
        return fixed;
    }
    const bool saysSerif = (holds("serif") && !holds("sans")) || holds("roman") || holds("mincho") || holds("song");
    const bool saysSans = holds("sans") || holds("gothic");
    return ofLanguage(family.language, saysSerif || (family.kind == rtf::FontClass::serif && !saysSans));
}

const char* known(std::string_view name, const std::string& letters)
{
    const auto* const row
        = std::ranges::find_if(substitutes, [&](auto& each) { return letters.starts_with(each.beginning); });
    if (row != substitutes.end()) {
        return row->families;
    }
    const auto* const own
        = std::ranges::find_if(ownNames, [&](auto& each) { return name.starts_with(each.beginning); });
    return own != ownNames.end() ? own->families : nullptr;
}

QString asQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

QStringList substitutesFor(const rtf::FontFamily& family)
{
    const std::string letters = beginningOf(family.name);
    const char* families = known(family.name, letters);
    const bool isSymbols = families == symbols;
    if (families == nullptr && !family.alternative.empty()) {
        families = known(family.alternative, beginningOf(family.alternative));
    }
    QStringList result = QString::fromLatin1(families != nullptr ? families : guessFor(family, letters)).split('|');
    for (const std::string_view name : {std::string_view(family.alternative), std::string_view(family.name)}) {
        if (!isSymbols && !name.empty()) {
            result.prepend(asQString(name));
        }
    }
    return result;
}

} // namespace corvellane::view
