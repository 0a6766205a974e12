#include "rtf/ControlWords.h"

#include "rtf/Actions.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace corvellane::rtf {
namespace {

using namespace actions;

/// What the reader knows, words of the same sense in one row, parted by spaces.
constexpr auto rows = std::to_array<ControlWord>({
    {"rtf ansi fldrslt listtext pntext nesttableprops shpinst shptxt"},
    {"mac", codePage<10000>},
    {"pc", codePage<437>},
    {"pca", codePage<850>},
    {"ansicpg", codePageOfParameter},
    {"cocoartf", cocoa},

    {"tab", nullptr, U'\t'},
    {"line lbr", nullptr, U'\u2028'},
    {"emdash", nullptr, U'\u2014'},
    {"endash", nullptr, U'\u2013'},
    {"emspace", nullptr, U'\u2003'},
    {"enspace", nullptr, U'\u2002'},
    {"qmspace", nullptr, U'\u2005'},
    {"bullet", nullptr, U'\u2022'},
    {"lquote", nullptr, U'\u2018'},
    {"rquote", nullptr, U'\u2019'},
    {"ldblquote", nullptr, U'\u201C'},
    {"rdblquote", nullptr, U'\u201D'},
    {"ltrmark", nullptr, U'\u200E'},
    {"rtlmark", nullptr, U'\u200F'},
    {"zwj", nullptr, U'\u200D'},
    {"zwnj", nullptr, U'\u200C'},
    {"zwbo", nullptr, U'\u200B'},
    {"zwnbo", nullptr, U'\u2060'},

    {"u", unicode},
    {"uc", fallbackLength},
    {"par", paragraph},
    {"cell nestcell", cell},
    {"row", row<false>},
    {"nestrow", row<true>},
    {"page column sect", page},
    {"sbknone sbkcol", samePage},

    {"plain", plain},
    {"f", font},
    {"fs", size},
    {"b", set<&CharacterState::bold>},
    {"i", set<&CharacterState::italic>},
    {"v deleted", set<&CharacterState::hidden>},
    {"strike striked", set<&CharacterState::strike>},
    {"ul uld uldash uldashd uldashdd uldb ulhwave ulldash ulth ulthd ulthdash ulthdashd ulthdashdd ulthldash "
     "ululdbwave "
     "ulw ulwave",
        set<&CharacterState::underline>},
    {"ulnone", set<&CharacterState::underline, false>},
    {"super", set<&CharacterState::script, VerticalPosition::superscript>},
    {"sub", set<&CharacterState::script, VerticalPosition::subscript>},
    {"nosupersub", set<&CharacterState::script, VerticalPosition::normal>},
    {"scaps", set<&CharacterState::capitals, Capitals::small>},
    {"caps", set<&CharacterState::capitals, Capitals::all>},
    {"up", offset<1>},
    {"dn", offset<-1>},
    {"cf", color},
    {"cb", background<true>},
    {"chcbpat highlight", background<false>},

    {"pard", paragraphDefaults},
    {"ql", align<Alignment::left>},
    {"qr", align<Alignment::right>},
    {"qc", align<Alignment::centre>},
    {"qj qd", align<Alignment::justified>},
    {"qnatural", align<Alignment::natural>},
    {"li lin", number<&ParagraphState::left>},
    {"ri rin", number<&ParagraphState::right>},
    {"fi", number<&ParagraphState::firstLine>},
    {"sb", number<&ParagraphState::before>},
    {"sa", number<&ParagraphState::after>},
    {"sl slminimum", number<&ParagraphState::line>},
    {"slmult", set<&ParagraphState::lineIsMultiple>},
    {"slmaximum", lineExactly},
    {"tql", tabKind<TabKind::left>},
    {"tqc", tabKind<TabKind::centre>},
    {"tqr", tabKind<TabKind::right>},
    {"tqdec", tabKind<TabKind::decimal>},
    {"tx", tabStop},
    {"intbl", set<&ParagraphState::inTable>},
    {"itap", tableDepth},
    {"pagebb", set<&ParagraphState::pageBreakBefore>},

    {"fonttbl", destination<Destination::fontTable>},
    {"fcharset", fontCharset},
    {"cpg", fontCodePage},
    {"colortbl", destination<Destination::colorTable>},
    {"red", colorPart<16>},
    {"green", colorPart<8>},
    {"blue", colorPart<0>},
    {"field", field},
    {"fldinst", fieldInstruction},
    {"upr", destination<Destination::alternative>},
    {"ud", unicodeAlternative},
    {"NeXTGraphic aftncn aftnsep aftnsepc annotation atnauthor atnid bkmkend bkmkstart colorschememapping datafield "
     "datastore docvar falt filetbl fname fontemb footer footerf footerl footerr footnote formfield ftncn ftnsep "
     "ftnsepc generator header headerf headerl headerr info keycode latentstyles listoverridetable listpicture "
     "listtable mmathPr nonesttables objalias objclass objdata objname objsect panose pgptbl pict pn pnseclvl pntxta "
     "pntxtb private revtbl rsidtbl rxe shprslt sn sp stylesheet sv tc tcn template themedata txe userprops xe "
     "xmlnstbl",
        destination<Destination::skipped>},
});

constexpr std::size_t wordCount = [] {
    std::size_t count = rows.size();
    for (const ControlWord& row : rows) {
        count += static_cast<std::size_t>(std::ranges::count(row.name, ' '));
    }
    return count;
}();

constexpr auto words = [] {
    std::array<ControlWord, wordCount> single{};
    std::size_t count = 0;
    for (ControlWord row : rows) {
        for (std::string_view names = row.name; !names.empty(); ++count) {
            row.name = names.substr(0, names.find(' '));
            names.remove_prefix(std::min(row.name.size() + 1, names.size()));
            single[count] = row;
        }
    }
    return single;
}();

constexpr std::size_t slotCount = 1U << 10U;
static_assert(words.size() * 4 < slotCount);

/// Words differ by their first letters and their lengths, but for a few that then stand in neighbouring slots.
constexpr std::size_t slotOf(std::string_view name)
{
    std::uint64_t letters = name.size();
    for (const char letter : name.substr(0, 7)) {
        letters = letters << 8U | static_cast<unsigned char>(letter);
    }
    return letters * 0x9E3779B97F4A7C15U >> 54U;
}

/// 1 + the index of a word in the slot of its name or in the next free one after it; 0 in a free slot.
constexpr std::array<std::uint8_t, slotCount> slots = [] {
    static_assert(words.size() <= UINT8_MAX);
    std::array<std::uint8_t, slotCount> filled{};
    for (std::size_t index = 0; index < words.size(); ++index) {
        std::size_t slot = slotOf(words[index].name);
        while (filled[slot] != 0) {
            slot = (slot + 1) % slotCount;
        }
        filled[slot] = static_cast<std::uint8_t>(index + 1);
    }
    return filled;
}();

constexpr const ControlWord* find(std::string_view name)
{
    for (std::size_t slot = slotOf(name); slots[slot] != 0; slot = (slot + 1) % slotCount) {
        const ControlWord& candidate = words[slots[slot] - 1];
        if (candidate.name == name) {
            return &candidate;
        }
    }
    return nullptr;
}

static_assert(std::ranges::all_of(words, [](auto& word) { return find(word.name) == &word; }));

} // namespace

const ControlWord* findControlWord(std::string_view name)
{
    return find(name);
}

} // namespace corvellane::rtf
