#include "rtf/RtfControlWords.h"

#include "rtf/AttributedText.h"
#include "rtf/RtfState.h"

#include <array>
#include <cstddef>

namespace corvellane::rtf {
namespace {

template <typename Value>
constexpr ControlWord word(std::string_view name, RtfAction action, Value value)
{
    return {name, action, static_cast<std::int32_t>(value)};
}

constexpr ControlWord word(std::string_view name, RtfAction action)
{
    return {name, action, 0};
}

using enum RtfAction;

constexpr auto words = std::to_array<ControlWord>({
    word("rtf", nothing),
    word("ansi", nothing),
    word("mac", codePage, 10000),
    word("pc", codePage, 437),
    word("pca", codePage, 850),
    word("ansicpg", codePage),
    word("cocoartf", cocoa),

    word("tab", character, U'\t'),
    word("line", character, U'\u2028'),
    word("lbr", character, U'\u2028'),
    word("emdash", character, U'\u2014'),
    word("endash", character, U'\u2013'),
    word("emspace", character, U'\u2003'),
    word("enspace", character, U'\u2002'),
    word("qmspace", character, U'\u2005'),
    word("bullet", character, U'\u2022'),
    word("lquote", character, U'\u2018'),
    word("rquote", character, U'\u2019'),
    word("ldblquote", character, U'\u201C'),
    word("rdblquote", character, U'\u201D'),
    word("ltrmark", character, U'\u200E'),
    word("rtlmark", character, U'\u200F'),
    word("zwj", character, U'\u200D'),
    word("zwnj", character, U'\u200C'),
    word("zwbo", character, U'\u200B'),
    word("zwnbo", character, U'\u2060'),

    word("par", paragraph),
    word("cell", cell),
    word("nestcell", cell),
    word("row", row),
    word("nestrow", row, 1),
    word("page", page),
    word("column", page),
    word("sect", page),
    word("sbknone", samePage),
    word("sbkcol", samePage),

    word("plain", plain),
    word("f", font),
    word("fs", size),
    word("b", flag, CharacterFlag::bold),
    word("i", flag, CharacterFlag::italic),
    word("v", flag, CharacterFlag::hidden),
    word("deleted", flag, CharacterFlag::hidden),
    word("strike", flag, CharacterFlag::strike),
    word("striked", flag, CharacterFlag::strike),
    word("ul", flag, CharacterFlag::underline),
    word("uld", flag, CharacterFlag::underline),
    word("uldash", flag, CharacterFlag::underline),
    word("uldashd", flag, CharacterFlag::underline),
    word("uldashdd", flag, CharacterFlag::underline),
    word("uldb", flag, CharacterFlag::underline),
    word("ulhwave", flag, CharacterFlag::underline),
    word("ulldash", flag, CharacterFlag::underline),
    word("ulth", flag, CharacterFlag::underline),
    word("ulthd", flag, CharacterFlag::underline),
    word("ulthdash", flag, CharacterFlag::underline),
    word("ulthdashd", flag, CharacterFlag::underline),
    word("ulthdashdd", flag, CharacterFlag::underline),
    word("ulthldash", flag, CharacterFlag::underline),
    word("ululdbwave", flag, CharacterFlag::underline),
    word("ulw", flag, CharacterFlag::underline),
    word("ulwave", flag, CharacterFlag::underline),
    word("ulnone", noUnderline),
    word("super", script, VerticalPosition::superscript),
    word("sub", script, VerticalPosition::subscript),
    word("nosupersub", script, VerticalPosition::normal),
    word("scaps", capitals, Capitals::small),
    word("caps", capitals, Capitals::all),
    word("up", offset, 1),
    word("dn", offset, -1),
    word("cf", color),
    word("cb", background, 1),
    word("chcbpat", background),
    word("highlight", background),
    word("u", unicode),
    word("uc", fallbackLength),

    word("pard", paragraphDefaults),
    word("ql", alignment, Alignment::left),
    word("qr", alignment, Alignment::right),
    word("qc", alignment, Alignment::centre),
    word("qj", alignment, Alignment::justified),
    word("qd", alignment, Alignment::justified),
    word("qnatural", alignment, Alignment::natural),
    word("li", length, ParagraphLength::left),
    word("lin", length, ParagraphLength::left),
    word("ri", length, ParagraphLength::right),
    word("rin", length, ParagraphLength::right),
    word("fi", length, ParagraphLength::firstLine),
    word("sb", length, ParagraphLength::before),
    word("sa", length, ParagraphLength::after),
    word("sl", length, ParagraphLength::line),
    word("slmult", lineMultiple),
    word("slminimum", length, ParagraphLength::line),
    word("slmaximum", lineExactly),
    word("tql", tabKind, TabKind::left),
    word("tqc", tabKind, TabKind::centre),
    word("tqr", tabKind, TabKind::right),
    word("tqdec", tabKind, TabKind::decimal),
    word("tx", tabStop),
    word("intbl", inTable),
    word("itap", tableDepth),
    word("pagebb", pageBreakBefore),

    word("fonttbl", destination, Destination::fontTable),
    word("fcharset", fontCharset),
    word("cpg", fontCodePage),
    word("colortbl", destination, Destination::colorTable),
    word("red", colorPart, 16),
    word("green", colorPart, 8),
    word("blue", colorPart, 0),
    word("field", field),
    word("fldinst", destination, Destination::fieldInstruction),
    word("fldrslt", nothing),
    word("upr", destination, Destination::alternative),
    word("ud", unicodeAlternative),
    word("listtext", nothing),
    word("pntext", nothing),
    word("nesttableprops", nothing),
    word("shpinst", nothing),
    word("shptxt", nothing),

    word("NeXTGraphic", destination, Destination::skipped),
    word("aftncn", destination, Destination::skipped),
    word("aftnsep", destination, Destination::skipped),
    word("aftnsepc", destination, Destination::skipped),
    word("annotation", destination, Destination::skipped),
    word("atnauthor", destination, Destination::skipped),
    word("atnid", destination, Destination::skipped),
    word("bkmkend", destination, Destination::skipped),
    word("bkmkstart", destination, Destination::skipped),
    word("colorschememapping", destination, Destination::skipped),
    word("datafield", destination, Destination::skipped),
    word("datastore", destination, Destination::skipped),
    word("docvar", destination, Destination::skipped),
    word("falt", destination, Destination::skipped),
    word("filetbl", destination, Destination::skipped),
    word("fname", destination, Destination::skipped),
    word("fontemb", destination, Destination::skipped),
    word("footer", destination, Destination::skipped),
    word("footerf", destination, Destination::skipped),
    word("footerl", destination, Destination::skipped),
    word("footerr", destination, Destination::skipped),
    word("footnote", destination, Destination::skipped),
    word("formfield", destination, Destination::skipped),
    word("ftncn", destination, Destination::skipped),
    word("ftnsep", destination, Destination::skipped),
    word("ftnsepc", destination, Destination::skipped),
    word("generator", destination, Destination::skipped),
    word("header", destination, Destination::skipped),
    word("headerf", destination, Destination::skipped),
    word("headerl", destination, Destination::skipped),
    word("headerr", destination, Destination::skipped),
    word("info", destination, Destination::skipped),
    word("keycode", destination, Destination::skipped),
    word("latentstyles", destination, Destination::skipped),
    word("listoverridetable", destination, Destination::skipped),
    word("listpicture", destination, Destination::skipped),
    word("listtable", destination, Destination::skipped),
    word("mmathPr", destination, Destination::skipped),
    word("nonesttables", destination, Destination::skipped),
    word("objalias", destination, Destination::skipped),
    word("objclass", destination, Destination::skipped),
    word("objdata", destination, Destination::skipped),
    word("objname", destination, Destination::skipped),
    word("objsect", destination, Destination::skipped),
    word("panose", destination, Destination::skipped),
    word("pict", destination, Destination::skipped),
    word("pgptbl", destination, Destination::skipped),
    word("pn", destination, Destination::skipped),
    word("pnseclvl", destination, Destination::skipped),
    word("pntxta", destination, Destination::skipped),
    word("pntxtb", destination, Destination::skipped),
    word("private", destination, Destination::skipped),
    word("revtbl", destination, Destination::skipped),
    word("rsidtbl", destination, Destination::skipped),
    word("rxe", destination, Destination::skipped),
    word("shprslt", destination, Destination::skipped),
    word("sn", destination, Destination::skipped),
    word("sp", destination, Destination::skipped),
    word("sv", destination, Destination::skipped),
    word("stylesheet", destination, Destination::skipped),
    word("tc", destination, Destination::skipped),
    word("tcn", destination, Destination::skipped),
    word("template", destination, Destination::skipped),
    word("themedata", destination, Destination::skipped),
    word("txe", destination, Destination::skipped),
    word("userprops", destination, Destination::skipped),
    word("xe", destination, Destination::skipped),
    word("xmlnstbl", destination, Destination::skipped),
});

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

} // namespace

const ControlWord* findControlWord(std::string_view name)
{
    for (std::size_t slot = slotOf(name); slots[slot] != 0; slot = (slot + 1) % slotCount) {
        const ControlWord& candidate = words[slots[slot] - 1];
        if (candidate.name == name) {
            return &candidate;
        }
    }
    return nullptr;
}

} // namespace corvellane::rtf
