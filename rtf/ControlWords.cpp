#include "rtf/ControlWords.h"

#include "rtf/ByteScan.h"
#include "rtf/ListActions.h"
#include "rtf/TableActions.h"
#include "rtf/TextActions.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace corvellane::rtf {
namespace {

using namespace actions;

/// Words of the same sense, parted by spaces.
struct Row {
    std::string_view names;
    Action action = nullptr;
    char32_t character = 0;
};

void nothing(Writer&, const Token&) { }

/// What the reader knows.
constexpr auto rows = std::to_array<Row>({
    {"rtf ansi shppict picprop sp shptxt", nothing},
    {"mac", codePage<10000>},
    {"pc", codePage<437>},
    {"pca", codePage<850>},
    {"ansicpg", codePageOfParameter},
    {"cocoartf", cocoa},
    {"htmautsp", set<&Writer::largerSpaceCounts>},
    {"deftab", number<&Writer::defaultTab>},

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
    {"page column sect", page},
    {"sbknone sbkcol", samePage},

    {"plain", plain},
    {"f", font},
    {"af", chooseFont},
    {"dbch", choose<&Writer::fontIsEastAsian, true>},
    {"loch hich ltrch rtlch", choose<&Writer::fontIsEastAsian, false>},
    {"fs", size},
    {"b", set<&TextAttributes::bold>},
    {"i", set<&TextAttributes::italic>},
    {"v deleted", set<&CharacterState::hidden>},
    {"strike striked", set<&TextAttributes::strike>},
    {"ul", set<&TextAttributes::underline, Underline::solid>},
    {"ulw", set<&TextAttributes::underline, Underline::words>},
    {"ulth", set<&TextAttributes::underline, Underline::thick>},
    {"uldb", set<&TextAttributes::underline, Underline::twofold>},
    {"uld ulthd", set<&TextAttributes::underline, Underline::dotted>},
    {"uldash ulldash ulthdash ulthldash", set<&TextAttributes::underline, Underline::dashed>},
    {"uldashd ulthdashd", set<&TextAttributes::underline, Underline::dashDotted>},
    {"uldashdd ulthdashdd", set<&TextAttributes::underline, Underline::dashDotDotted>},
    {"ulwave ulhwave ululdbwave", set<&TextAttributes::underline, Underline::waved>},
    {"ulnone", choose<&TextAttributes::underline, Underline::none>},
    {"super", set<&TextAttributes::script, VerticalPosition::superscript>},
    {"sub", set<&TextAttributes::script, VerticalPosition::subscript>},
    {"nosupersub", choose<&TextAttributes::script, VerticalPosition::normal>},
    {"scaps", set<&TextAttributes::capitals, Capitals::small>},
    {"caps", set<&TextAttributes::capitals, Capitals::all>},
    {"up", offset<1>},
    {"dn", offset<-1>},
    {"expndtw", letterSpacing<1>},
    {"expnd", letterSpacing<5>},
    {"cf", color},
    {"cb", background<true>},
    {"chcbpat highlight", background<false>},
    {"chshdng", shade<&TextAttributes::background>},

    {"pard", paragraphDefaults},
    {"s", smallNumber<&ParagraphFormat::style, UINT16_MAX>},
    {"ql", choose<&ParagraphFormat::alignment, Alignment::left>},
    {"qr", choose<&ParagraphFormat::alignment, Alignment::right>},
    {"qc", choose<&ParagraphFormat::alignment, Alignment::centre>},
    {"qj qd", choose<&ParagraphFormat::alignment, Alignment::justified>},
    {"qnatural", choose<&ParagraphFormat::alignment, Alignment::natural>},
    {"ltrpar", choose<&ParagraphFormat::direction, Direction::leftToRight>},
    {"rtlpar", choose<&ParagraphFormat::direction, Direction::rightToLeft>},
    {"li lin", number<&ParagraphFormat::leftIndent>},
    {"ri rin", number<&ParagraphFormat::rightIndent>},
    {"fi", number<&ParagraphFormat::firstLineIndent>},
    {"sb", number<&ParagraphFormat::spaceBefore>},
    {"sa", number<&ParagraphFormat::spaceAfter>},
    {"sbauto", set<&ParagraphFormat::automaticSpaceBefore>},
    {"saauto", set<&ParagraphFormat::automaticSpaceAfter>},
    {"contextualspace", set<&ParagraphFormat::contextualSpace>},
    {"sl slminimum", lineHeight},
    {"slmult", set<&ParagraphFormat::lineIsMultiple>},
    {"slmaximum", largestLineHeight},
    {"cbpat", ground<&ParagraphFormat::shading>},
    {"shading", shade<&ParagraphFormat::shading>},
    {"pagebb", set<&ParagraphFormat::pageBreakBefore>},
    {"tql", choose<&Writer::tabKind, TabKind::left>},
    {"tqc", choose<&Writer::tabKind, TabKind::centre>},
    {"tqr", choose<&Writer::tabKind, TabKind::right>},
    {"tqdec", choose<&Writer::tabKind, TabKind::decimal>},
    {"tldot tlmdot", choose<&Writer::tabLeader, TabLeader::dots>},
    {"tlhyph", choose<&Writer::tabLeader, TabLeader::hyphens>},
    {"tlul tlth tleq", choose<&Writer::tabLeader, TabLeader::line>},
    {"tx", tabStop},

    {"chbrdr", border<BorderTarget::character, allSides>},
    {"box", border<BorderTarget::paragraph, allSides>},
    {"brdrt", border<BorderTarget::paragraph, bit(Side::top)>},
    {"brdrl", border<BorderTarget::paragraph, bit(Side::left)>},
    {"brdrb", border<BorderTarget::paragraph, bit(Side::bottom)>},
    {"brdrr", border<BorderTarget::paragraph, bit(Side::right)>},
    {"brdrbtw brdrbar", border<BorderTarget::none, 0>},
    {"clbrdrt", border<BorderTarget::cell, bit(Side::top)>},
    {"clbrdrl", border<BorderTarget::cell, bit(Side::left)>},
    {"clbrdrb", border<BorderTarget::cell, bit(Side::bottom)>},
    {"clbrdrr", border<BorderTarget::cell, bit(Side::right)>},
    {"cldglu cldgll", border<BorderTarget::none, 0>},
    {"trbrdrt", border<BorderTarget::row, bit(Side::top)>},
    {"trbrdrl", border<BorderTarget::row, bit(Side::left)>},
    {"trbrdrb", border<BorderTarget::row, bit(Side::bottom)>},
    {"trbrdrr", border<BorderTarget::row, bit(Side::right)>},
    {"trbrdrh", border<BorderTarget::row, 0b010000>},
    {"trbrdrv", border<BorderTarget::row, 0b100000>},
    {"brdrs brdrth brdrsh brdrinset brdroutset brdremboss brdrengrave brdrframe", borderStyle<LineStyle::solid>},
    {"brdrdb brdrtriple brdrtnthsg brdrthtnsg brdrtnthtnsg brdrtnthmg brdrthtnmg brdrtnthtnmg brdrtnthlg brdrthtnlg "
     "brdrtnthtnlg brdrwavydb",
        borderStyle<LineStyle::twofold>},
    {"brdrdot", borderStyle<LineStyle::dotted>},
    {"brdrdash brdrdashsm brdrdashd brdrdashdd brdrdashdot brdrdashdotdot brdrdashdotstr brdrhair brdrwavy",
        borderStyle<LineStyle::dashed>},
    {"brdrnone brdrnil brdrtbl", borderStyle<LineStyle::none>},
    {"brdrw", borderWidth},
    {"brsp", borderSpace},
    {"brdrcf", borderColor},

    {"intbl", inTable},
    {"itap", tableDepth},
    {"cell", cell},
    {"nestcell", nestedCell},
    {"row", row},
    {"nestrow", nestedRow},
    {"nesttableprops", nestedRowFormat},
    {"trowd", rowDefaults},
    {"trleft", number<&RowFormat::left>},
    {"trgaph", cellGap},
    {"trql", choose<&RowFormat::alignment, Alignment::left>},
    {"trqc", choose<&RowFormat::alignment, Alignment::centre>},
    {"trqr", choose<&RowFormat::alignment, Alignment::right>},
    {"rtlrow", choose<&RowFormat::rightToLeft, true>},
    {"ltrrow", choose<&RowFormat::rightToLeft, false>},
    {"trpaddt", inset<&RowFormat::inset, Side::top>},
    {"trpaddl", inset<&RowFormat::inset, Side::left>},
    {"trpaddb", inset<&RowFormat::inset, Side::bottom>},
    {"trpaddr", inset<&RowFormat::inset, Side::right>},
    // The words for the top and for the left of a cell are swapped in all programs that write them.
    {"clpadt", inset<&CellFormat::inset, Side::left>},
    {"clpadl", inset<&CellFormat::inset, Side::top>},
    {"clpadb", inset<&CellFormat::inset, Side::bottom>},
    {"clpadr", inset<&CellFormat::inset, Side::right>},
    {"clmgf", choose<&CellFormat::horizontalMerge, CellMerge::first>},
    {"clmrg", choose<&CellFormat::horizontalMerge, CellMerge::continued>},
    {"clvmgf", choose<&CellFormat::verticalMerge, CellMerge::first>},
    {"clvmrg", choose<&CellFormat::verticalMerge, CellMerge::continued>},
    {"clvertalt", choose<&CellFormat::alignment, CellAlignment::top>},
    {"clvertalc", choose<&CellFormat::alignment, CellAlignment::centre>},
    {"clvertalb", choose<&CellFormat::alignment, CellAlignment::bottom>},
    {"clcbpat", ground<&CellFormat::shading>},
    {"clshdng", shade<&CellFormat::shading>},
    {"cellx", cellEdge},

    {"listtable listoverridetable", destination<Destination::lists>},
    {"list", list},
    {"listoverride", listOverride},
    {"listid", listId},
    {"lfolevel", overrideOfLevel},
    {"listlevel", listLevel},
    {"levelnfc levelnfcn", number<&ListLevel::kind>},
    {"levelstartat", levelStart},
    {"levelfollow", number<&ListLevel::follow>},
    {"levellegal", set<&ListLevel::isLegal>},
    {"leveltext", levelText},
    {"ls", listNumber},
    {"ilvl", smallNumber<&ParagraphFormat::listLevel, Lists::mostLevels - 1>},
    {"listtext pntext", listText},
    {"pn", numbering},
    {"pnlvl", numberingLevel},
    {"pnlvlblt", numberingKind<ListLevel::bullet>},
    {"pnlvlcont", numberingKind<ListLevel::none>},
    {"pndec pncard", numberingKind<ListLevel::decimal>},
    {"pnucrm", numberingKind<ListLevel::upperRoman>},
    {"pnlcrm", numberingKind<ListLevel::lowerRoman>},
    {"pnucltr", numberingKind<ListLevel::upperLetter>},
    {"pnlcltr", numberingKind<ListLevel::lowerLetter>},
    {"pnord", numberingKind<ListLevel::ordinal>},
    {"pnstart", number<&ListLevel::start>},
    {"pnf", numberingFont},
    {"pntxtb", destinationWithin<Destination::numbering, Destination::numberingBefore>},
    {"pntxta", destinationWithin<Destination::numbering, Destination::numberingAfter>},

    {"footnote", note},
    {"ftnalt", endnote},
    {"chftn", noteMark},
    {"ftnstart", noteStart<&Notes::footnotes>},
    {"ftnnar", noteKind<&Notes::footnotes, ListLevel::decimal>},
    {"ftnnalc", noteKind<&Notes::footnotes, ListLevel::lowerLetter>},
    {"ftnnauc", noteKind<&Notes::footnotes, ListLevel::upperLetter>},
    {"ftnnrlc", noteKind<&Notes::footnotes, ListLevel::lowerRoman>},
    {"ftnnruc", noteKind<&Notes::footnotes, ListLevel::upperRoman>},
    {"aftnstart", noteStart<&Notes::endnotes>},
    {"aftnnar", noteKind<&Notes::endnotes, ListLevel::decimal>},
    {"aftnnalc", noteKind<&Notes::endnotes, ListLevel::lowerLetter>},
    {"aftnnauc", noteKind<&Notes::endnotes, ListLevel::upperLetter>},
    {"aftnnrlc", noteKind<&Notes::endnotes, ListLevel::lowerRoman>},
    {"aftnnruc", noteKind<&Notes::endnotes, ListLevel::upperRoman>},

    {"pict", picture},
    {"pngblip", pictureKind<Picture::Kind::png>},
    {"jpegblip", pictureKind<Picture::Kind::jpeg>},
    {"dibitmap", pictureKind<Picture::Kind::bitmap>},
    {"picwgoal", pictureNumber<&Pictures::goalWidth>},
    {"pichgoal", pictureNumber<&Pictures::goalHeight>},
    {"picscalex", pictureNumber<&Pictures::scaleX>},
    {"picscaley", pictureNumber<&Pictures::scaleY>},
    {"bin", binary},
    {"sn", propertyName},
    {"sv", propertyValue},
    {"shpinst", shape},
    {"object", object},

    {"fonttbl", destination<Destination::fontTable>},
    {"falt", destinationWithin<Destination::fontTable, Destination::fontAlternative>},
    {"fcharset", fontCharset},
    {"cpg", fontCodePage},
    {"froman", fontClass<FontClass::serif>},
    {"fswiss", fontClass<FontClass::sans>},
    {"fmodern", fontClass<FontClass::fixed>},
    {"fscript", fontClass<FontClass::script>},
    {"fdecor", fontClass<FontClass::decorative>},
    {"colortbl", destination<Destination::colorTable>},
    {"red", colorPart<&Color::red>},
    {"green", colorPart<&Color::green>},
    {"blue", colorPart<&Color::blue>},
    {"field", field},
    {"fldinst", fieldInstruction},
    {"fldrslt", fieldResult},
    {"upr", destination<Destination::alternative>},
    {"ud", unicodeAlternative},
    {"NeXTGraphic aftncn aftnsep aftnsepc annotation atnauthor atnid bkmkend bkmkstart blipuid colorschememapping "
     "datafield datastore docvar filetbl fname fontemb footer footerf footerl footerr formfield ftncn ftnsep ftnsepc "
     "generator header headerf headerl headerr info keycode latentstyles levelnumbers listname listpicture "
     "mmathPr nonesttables nonshppict objalias objclass objdata objname objsect panose pgptbl pnseclvl private revtbl "
     "rsidtbl rxe shprslt stylesheet tc tcn template themedata txe userprops xe xmlnstbl",
        destination<Destination::skipped>},
});

} // namespace

constexpr std::array<ControlWord, controlWordSlotCount> controlWords = [] {
    std::array<ControlWord, controlWordSlotCount> filled{};
    const auto add = [&](const ControlWord& word) {
        std::size_t slot = controlWordSlot(word.code);
        while (filled[slot].code != 0 && filled[slot].code != word.code) {
            slot = (slot + 1) % controlWordSlotCount;
        }
        // No two words have one code: a second one does not compile.
        filled.at(filled[slot].code == 0 ? slot : filled.size()) = word;
    };
    for (const Row& row : rows) {
        for (std::size_t begin = 0, end = 0; begin < row.names.size(); begin = end + 1) {
            end = std::min(row.names.find(' ', begin), row.names.size());
            add({.code = codeOfName(row.names.substr(begin, end - begin)),
                .action = row.action,
                .character = row.character});
        }
    }
    return filled;
}();

static_assert(std::ranges::count(controlWords, 0U, &ControlWord::code) > std::ptrdiff_t{controlWordSlotCount / 2});

} // namespace corvellane::rtf
