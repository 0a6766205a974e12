#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace corvellane::rtf {

/// A length in twentieths of a point, as RTF counts it.
using Twips = std::int32_t;

constexpr double points(Twips twips)
{
    return twips / 20.0;
}

/// An sRGB colour, each part 0 to 255; or none, which is Color().
struct Color {
    bool isSet = false;
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    bool operator==(const Color&) const = default;
};

enum class LineStyle : std::uint8_t { none, solid, twofold, dotted, dashed };

/// A line around text, a paragraph or a cell.
struct Border {
    LineStyle style = LineStyle::none;
    /// Twips.
    std::uint8_t width = 0;
    /// Points between the line and what it stands around.
    std::uint8_t space = 0;
    /// The file says what line it is, or that there is none.
    bool isSaid = false;
    /// None: the colour of text.
    Color color;

    bool operator==(const Border&) const = default;
};

/// The sides of what has borders, in the order of arrays of theirs.
enum Side : std::uint8_t { top, left, bottom, right };
using Borders = std::array<Border, 4>;

enum class Underline : std::uint8_t {
    none,
    solid,
    twofold,
    dotted,
    dashed,
    dashDotted,
    dashDotDotted,
    waved,
    thick,
    words
};
enum class VerticalPosition : std::uint8_t { normal, superscript, subscript };
enum class Capitals : std::uint8_t { asTyped, small, all };

/// How a run of text looks.
struct TextAttributes {
    /// Index into AttributedText::families.
    std::uint32_t family = 0;
    /// Half points, above zero.
    std::int32_t size = 24;
    /// None: the reader's own text colour.
    Color color;
    /// None: no background.
    Color background;
    /// Half points that the text is raised by, or lowered by below zero; independent of `script`.
    std::int32_t baselineOffset = 0;
    /// Added between letters.
    Twips letterSpacing = 0;
    /// 1 + the index into AttributedText::links; 0 for text that leads nowhere.
    std::uint32_t link = 0;
    /// 1 + the index into AttributedText::pictures of the picture that the run's one character U+FFFC stands for.
    std::uint32_t picture = 0;
    /// On all four sides of the run.
    Border frame;
    bool bold = false;
    bool italic = false;
    bool strike = false;
    Underline underline = Underline::none;
    VerticalPosition script = VerticalPosition::normal;
    Capitals capitals = Capitals::asTyped;
    std::array<std::uint8_t, 2> padding{};

    bool operator==(const TextAttributes&) const = default;
};

enum class TabKind : std::uint8_t { left, centre, right, decimal };
/// What fills the space that a tab makes.
enum class TabLeader : std::uint8_t { none, dots, hyphens, line };

/// A tab stop, its position counted from the text area's left edge.
struct TabStop {
    Twips position = 0;
    /// The stop set before this one: 1 + its index in AttributedText::tabStops, 0 for none.
    std::uint32_t previous = 0;
    TabKind kind = TabKind::left;
    TabLeader leader = TabLeader::none;
    /// How many stops there are up to this one.
    std::uint16_t count = 1;

    bool operator==(const TabStop&) const = default;
};

/// `natural` follows the direction of the text: left in a left-to-right paragraph.
enum class Alignment : std::uint8_t { natural, left, right, centre, justified };

/// `natural` follows the text's first letter.
enum class Direction : std::uint8_t { natural, leftToRight, rightToLeft };

/// `multiple` is counted in 240ths of the font's own line height, `atLeast` and `exactly` in twips.
struct LineHeight {
    enum class Kind : std::uint8_t { natural, multiple, atLeast, exactly };

    Kind kind = Kind::natural;
    std::int32_t value = 0;
};

/// How a paragraph is laid out. Lengths may be negative where that makes sense to the author. Indents and tab stops are
/// counted from where lines begin: in a right-to-left paragraph "left" is its right side.
struct ParagraphFormat {
    Twips leftIndent = 0;
    Twips rightIndent = 0;
    /// Relative to `leftIndent`: negative for a hanging first line.
    Twips firstLineIndent = 0;
    Twips spaceBefore = 0;
    Twips spaceAfter = 0;
    /// As RTF has it: exactly below zero and at least so much above it, in twips, or 240ths of a line.
    std::int32_t line = 0;
    /// The paragraph's last tab stop: 1 + its index in AttributedText::tabStops, 0 for none.
    std::uint32_t lastTab = 0;
    Color shading;
    /// Paragraphs of the same borders that follow each other are framed together.
    Borders borders{};
    bool lineIsMultiple = false;
    Alignment alignment = Alignment::natural;
    Direction direction = Direction::natural;
    /// How many tables the paragraph stands in, one inside the other.
    std::uint8_t tableDepth = 0;
    /// The author began a new page or section here.
    bool pageBreakBefore = false;
    /// The space is the reader's own, which is none between items of a list.
    bool automaticSpaceBefore = false;
    bool automaticSpaceAfter = false;
    /// There is no space between this paragraph and a neighbour of the same style.
    bool contextualSpace = false;
    /// The paragraph's style, as the file numbers it.
    std::uint16_t style = 0;
    /// The list that the paragraph is an item of, as the file numbers it; 0 for none.
    std::uint16_t list = 0;
    /// From 0 on.
    std::uint8_t listLevel = 0;
    /// Of a footnote or an endnote, all of which stand at the end of the text.
    bool isNote = false;
    std::array<std::uint8_t, 2> padding{};

    LineHeight lineHeight() const;

    bool operator==(const ParagraphFormat&) const = default;
};

enum class CellAlignment : std::uint8_t { top, centre, bottom };
/// A cell is merged into the one before it, or above it.
enum class CellMerge : std::uint8_t { none, first, continued };

/// A cell of a row's layout.
struct CellFormat {
    /// Where the cell ends, counted from the text area's left edge.
    Twips rightEdge = 0;
    /// The cell before this one in its row: 1 + its index in AttributedText::cellFormats, 0 for none.
    std::uint32_t previous = 0;
    Color shading;
    Borders borders{};
    /// Between the cell's edge and its text, by side; -1 where the row says it.
    std::array<std::int16_t, 4> inset{-1, -1, -1, -1};
    CellAlignment alignment = CellAlignment::top;
    CellMerge horizontalMerge = CellMerge::none;
    CellMerge verticalMerge = CellMerge::none;
    std::uint8_t padding = 0;
    /// How many cells there are up to this one.
    std::uint32_t count = 1;

    bool operator==(const CellFormat&) const = default;
};

/// How a row of a table is laid out.
struct RowFormat {
    /// Of the row, from the text area's left edge.
    Twips left = 0;
    /// The last cell: 1 + its index in AttributedText::cellFormats, 0 for none.
    std::uint32_t lastCell = 0;
    Borders borders{};
    /// Between rows, and between cells.
    std::array<Border, 2> innerBorders{};
    std::array<std::int16_t, 4> inset{};
    Alignment alignment = Alignment::natural;
    bool rightToLeft = false;
    /// How many tables the row stands in, its own included.
    std::uint8_t depth = 1;
    std::uint8_t padding = 0;

    bool operator==(const RowFormat&) const = default;
};

/// What the letters of a font look like, as far as the file says.
enum class FontClass : std::uint8_t { unknown, serif, sans, fixed, script, decorative };
/// The East Asian language that a font is made for.
enum class FontLanguage : std::uint8_t { other, japanese, simplifiedChinese, traditionalChinese, korean };

/// A family of fonts as the author's system knows it.
struct FontFamily {
    std::string name;
    /// The family to take where there is none of that name; may be empty.
    std::string alternative;
    FontClass kind = FontClass::unknown;
    FontLanguage language = FontLanguage::other;

    bool operator==(const FontFamily&) const = default;
};

/// A picture as it stands in the file.
struct Picture {
    enum class Kind : std::uint8_t { png, jpeg, bitmap };

    Kind kind = Kind::png;
    /// A whole file of its kind.
    std::string bytes;
    /// The size to show it at; 0 for its own.
    Twips width = 0;
    Twips height = 0;

    bool operator==(const Picture&) const = default;
};

/// The characters that end parts of the text.
namespace mark {
constexpr char paragraph = '\n';
/// Ends a paragraph and the cell that it stands in.
constexpr char cell = '\x1F';
/// Stands behind the mark of a row's last cell.
constexpr char row = '\x1E';
} // namespace mark

/// Something that a part of the text has in common: up to the byte `end`, from where the stretch before it ends.
struct Stretch {
    std::uint32_t end = 0;
    /// Index of what the bytes have in common.
    std::uint32_t index = 0;

    bool operator==(const Stretch&) const = default;
};

/// A part of the text of equal attributes.
struct Run {
    std::string_view text;
    /// Index into AttributedText::attributes.
    std::uint32_t attributes = 0;
};

/// Bytes [begin, end) of the text, without the mark that ends them.
struct Paragraph {
    std::uint32_t begin = 0;
    std::uint32_t end = 0;
    /// Index into AttributedText::formats.
    std::uint32_t format = 0;
    /// The index of the stretch in AttributedText::runs that the paragraph begins in.
    std::uint32_t firstRun = 0;
    /// The attributes of the paragraph's end, which give an empty paragraph its height.
    std::uint32_t endAttributes = 0;
};

/// Formatted text, held compactly: one buffer, and stretches of it that have their looks in common.
///
/// The text is valid UTF-8. Each paragraph is ended by one of the marks; U+2028 is a line break within a paragraph, a
/// tab is U+0009, and nothing else below U+0020 occurs. A row of a table is the paragraphs of its cells and a mark of
/// its own; blocksOf() tells which marks come to a table. What is none of the text has the index 0 and is empty.
struct AttributedText {
    std::string text;
    /// Of one look; the mark of a paragraph has the look of its end.
    std::vector<Stretch> runs;
    /// Whole paragraphs of one format, and what ends rows behind them.
    std::vector<Stretch> formatStretches;
    /// The formats of the rows, by the order of their marks: indices into `rowFormats`.
    std::vector<std::uint32_t> rows;
    std::vector<TextAttributes> attributes;
    std::vector<ParagraphFormat> formats;
    std::vector<TabStop> tabStops;
    std::vector<RowFormat> rowFormats;
    std::vector<CellFormat> cellFormats;
    std::vector<Picture> pictures;
    std::vector<FontFamily> families;
    /// Targets of links, as written: an address, "#" and a bookmark, or both together.
    std::vector<std::string> links;
    /// The distance between tab stops beyond the paragraph's own.
    Twips defaultTab = 720;
    /// Of the space after a paragraph and before the next one, the larger counts, and not their sum.
    bool largerSpaceCounts = false;

    /// All paragraphs in their order.
    std::vector<Paragraph> paragraphs() const;
    std::vector<Run> runsOf(const Paragraph& paragraph) const;
    /// The paragraph's own tab stops, in the order in which they were set.
    std::vector<TabStop> tabsOf(const ParagraphFormat& format) const;
    /// The row's cells from its beginning.
    std::vector<CellFormat> cellsOf(const RowFormat& format) const;

    bool operator==(const AttributedText&) const = default;
};

} // namespace corvellane::rtf
