#pragma once

#include "rtf/AttributedText.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <unordered_map>
#include <vector>

namespace corvellane::rtf {

/// What stands before the items of a list at one of its levels.
struct ListLevel {
    /// Kinds of numbers (\levelnfc of RTF 1.9.1).
    enum Kind : std::int32_t {
        decimal = 0,
        upperRoman = 1,
        lowerRoman = 2,
        upperLetter = 3,
        lowerLetter = 4,
        ordinal = 5,
        padded = 22,
        bullet = 23,
        none = 255
    };

    std::int32_t kind = decimal;
    std::int32_t start = 1;
    /// 0: a tab follows, 1: a space, 2: nothing.
    std::int32_t follow = 0;
    /// All numbers are decimal.
    bool isLegal = false;
    /// Index into the font table; -1 for the font of the text.
    std::int32_t font = -1;
    Twips left = 0;
    Twips firstLine = 0;
    /// UTF-8; the characters 0 to 8 stand for the numbers of the levels.
    std::string text;
};

/// What stands before one item.
struct ListMarker {
    /// UTF-8.
    std::string text;
    std::int32_t font = -1;
};

/// RTF's tables of lists, and the numbering that paragraphs say of themselves; and how far each list has been counted.
/// Of more than 4,096 lists only the first count.
class Lists {
public:
    static constexpr std::uint16_t mostLists = 4096;
    static constexpr std::uint8_t mostLevels = 9;

    void beginList();
    void beginOverride();
    void setId(std::int32_t id);
    /// The paragraphs' number for the list of the override that is being read.
    void setNumber(std::int32_t number);
    /// Begins a level, or nothing that counts where none is wanted.
    void beginLevel();
    /// A start that an override sets for its next level.
    void beginOverrideOfLevel() { ++overrideLevel_; }
    void setStart(std::int32_t start);
    ListLevel& level() { return level_; }
    void endLevel();

    /// Numbering of a paragraph's own; gives the number of its list.
    void beginNumbering();
    std::uint16_t endNumbering();
    std::uint8_t numberingLevel = 0;
    std::string before;
    std::string after;

    /// The level of a paragraph's list; null for one of no list that is known.
    const ListLevel* levelOf(const ParagraphFormat& paragraph) const;

    /// What stands before the next item, which is counted.
    ListMarker nextMarker(const ParagraphFormat& item);
    /// Counts an item whose marker is written in the file.
    void endParagraph(const ParagraphFormat& paragraph) { previous_ = paragraph.list; }

private:
    struct List {
        std::vector<ListLevel> levels;
        /// The numbers of the last item and of those it stands in, as many as are begun.
        std::vector<std::int32_t> numbers;
        /// Of numbering that paragraphs say of themselves.
        std::optional<std::uint8_t> numberingLevel;
    };

    /// What paragraphs say of their own numbering: its level, kind, start and text.
    using Numbering = std::tuple<std::uint8_t, std::int32_t, std::int32_t, std::string>;

    /// What the paragraphs' number of a list means.
    struct Use {
        std::size_t list = 0;
        std::vector<std::int32_t> starts;
        bool isBegun = false;
    };

    static std::string textOf(const ListLevel& level, const List& list);
    const Use* useOf(std::uint16_t number) const;
    void count(List& list, Use& use, std::uint8_t depth);
    bool continues(const List& list, std::uint16_t number, std::uint8_t depth) const;

    std::vector<List> lists_;
    /// Where lists of the tables stand in `lists_`, by their ids.
    std::unordered_map<std::int32_t, std::size_t> placesOfIds_;
    /// The paragraphs' numbers for their own numbering.
    std::map<Numbering, std::uint16_t> numberings_;
    std::unordered_map<std::uint16_t, Use> uses_;
    ListLevel level_;
    std::vector<std::int32_t> starts_;
    std::int32_t overrideId_ = 0;
    std::ptrdiff_t overrideLevel_ = -1;
    bool isOverride_ = false;
    std::uint16_t previous_ = 0;
};

/// A number as that kind writes it; decimal where the kind has none for it.
std::string numberText(std::int32_t number, std::int32_t kind);

} // namespace corvellane::rtf
