#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace corvellane::rtf {

/// An sRGB colour, each part 0 to 255.
struct Color {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    bool operator==(const Color&) const = default;
};

enum class VerticalPosition : std::uint8_t { normal, superscript, subscript };
enum class Capitals : std::uint8_t { asTyped, small, all };

/// How a run of text looks. Lengths are points.
struct TextAttributes {
    /// Index into AttributedText::families.
    std::uint32_t family = 0;
    /// Always above zero; half points occur.
    double size = 12;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strike = false;
    /// Absent: the reader's own text colour.
    std::optional<Color> color;
    /// Absent: no background.
    std::optional<Color> background;
    VerticalPosition script = VerticalPosition::normal;
    /// Above zero raises the text, below zero lowers it; independent of `script`.
    double baselineOffset = 0;
    Capitals capitals = Capitals::asTyped;
    /// Index into AttributedText::links; absent for text that leads nowhere.
    std::optional<std::uint32_t> link;

    bool operator==(const TextAttributes&) const = default;
};

enum class TabKind : std::uint8_t { left, centre, right, decimal };

/// A tab stop, its position counted in points from the text area's left edge.
struct TabStop {
    double position = 0;
    TabKind kind = TabKind::left;
    /// The stop set before this one: 1 + its index in AttributedText::tabStops, 0 for none.
    std::uint32_t previous = 0;

    bool operator==(const TabStop&) const = default;
};

/// `natural` follows the direction of the text: left in a left-to-right paragraph.
enum class Alignment : std::uint8_t { natural, left, right, centre, justified };

struct LineHeight {
    enum class Kind : std::uint8_t { natural, multiple, atLeast, exactly };

    Kind kind = Kind::natural;
    /// For `multiple` a factor on the font's own line height, for `atLeast` and `exactly` points.
    double value = 0;

    bool operator==(const LineHeight&) const = default;
};

/// How a paragraph is laid out. Lengths are points and may be negative where that makes sense to the author.
struct ParagraphFormat {
    Alignment alignment = Alignment::natural;
    double leftIndent = 0;
    double rightIndent = 0;
    /// Relative to `leftIndent`: negative for a hanging first line.
    double firstLineIndent = 0;
    double spaceBefore = 0;
    double spaceAfter = 0;
    LineHeight lineHeight;
    /// The paragraph's last tab stop: 1 + its index in AttributedText::tabStops, 0 for none.
    std::uint32_t lastTab = 0;
    /// The author began a new page or section here.
    bool pageBreakBefore = false;

    bool operator==(const ParagraphFormat&) const = default;
};

/// A stretch of equal attributes: bytes [begin, end) of AttributedText::text, never empty.
struct Run {
    std::uint32_t begin = 0;
    std::uint32_t end = 0;
    std::uint32_t attributes = 0;

    bool operator==(const Run&) const = default;
};

struct Paragraph {
    /// Its runs are [firstRun, endRun) of AttributedText::runs; none in an empty paragraph.
    std::uint32_t firstRun = 0;
    std::uint32_t endRun = 0;
    std::uint32_t format = 0;
    /// The attributes of the paragraph's end, which give an empty paragraph its height.
    std::uint32_t endAttributes = 0;

    bool operator==(const Paragraph&) const = default;
};

/// Formatted text, held compactly: one buffer, runs and paragraphs as ranges, equal attributes stored once.
///
/// The text is valid UTF-8. A paragraph's end is no character of it; U+2028 is a line break within a paragraph, a
/// tab is U+0009, and nothing else below U+0020 occurs. A row of a table is one paragraph, its cells parted by
/// tabs, the paragraphs within a cell by U+2028.
struct AttributedText {
    std::string text;
    std::vector<Paragraph> paragraphs;
    std::vector<Run> runs;
    std::vector<TextAttributes> attributes;
    std::vector<ParagraphFormat> formats;
    std::vector<TabStop> tabStops;
    /// Names of font families as the author's system knows them.
    std::vector<std::string> families;
    /// Targets of links, as written: an address, "#" and a bookmark, or both together.
    std::vector<std::string> links;

    std::span<const Run> runsOf(const Paragraph& paragraph) const
    {
        return std::span(runs).subspan(paragraph.firstRun, paragraph.endRun - paragraph.firstRun);
    }

    std::string_view textOf(const Run& run) const
    {
        return std::string_view(text).substr(run.begin, run.end - run.begin);
    }

    /// The paragraph's own tab stops, in the order in which they were set.
    std::vector<TabStop> tabsOf(const ParagraphFormat& format) const;

    bool operator==(const AttributedText&) const = default;
};

} // namespace corvellane::rtf
