#pragma once

#include "rtf/AttributedText.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace corvellane::rtf {

/// The character formatting in effect, in RTF's own units.
struct CharacterState {
    /// Index into the font table; -1 before any font is chosen.
    std::int32_t font = -1;
    /// 1 + the index of the link; 0 for none.
    std::uint32_t link = 0;
    /// 0x01RRGGBB; 0 for none.
    std::uint32_t color = 0;
    std::uint32_t background = 0;
    /// Half points.
    std::int32_t size = 24;
    /// Half points, upwards.
    std::int32_t offset = 0;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strike = false;
    bool hidden = false;
    VerticalPosition script = VerticalPosition::normal;
    Capitals capitals = Capitals::asTyped;
    std::uint8_t padding = 0;
};

/// The paragraph formatting in effect, lengths in twips.
struct ParagraphState {
    std::int32_t left = 0;
    std::int32_t right = 0;
    std::int32_t firstLine = 0;
    std::int32_t before = 0;
    std::int32_t after = 0;
    /// Exact below zero and at least so much above it, or 240ths of a line; 0 for the natural height.
    std::int32_t line = 0;
    /// 1 + the index of the last tab stop; 0 for none.
    std::uint32_t lastTab = 0;
    Alignment alignment = Alignment::natural;
    bool lineIsMultiple = false;
    bool pageBreakBefore = false;
    bool inTable = false;
};

/// A tab stop in twips; chained as the TabStop it becomes.
struct TabState {
    std::int32_t position = 0;
    std::uint32_t previous = 0;
    TabKind kind = TabKind::left;
    std::uint8_t padding = 0;
    /// How many stops the chain has up to this one.
    std::uint16_t count = 1;
};

/// Where the text of a group goes.
enum class Destination : std::uint8_t {
    body,
    skipped,
    fontTable,
    colorTable,
    fieldInstruction,
    /// Text for readers that know no Unicode, and within it the Unicode text in its stead (\upr and \ud).
    alternative,
};

/// The formatting in effect inside a group, as its beginning saves it and its end restores it.
struct GroupState {
    /// Indices of a CharacterState and a ParagraphState.
    std::uint32_t character = 0;
    std::uint32_t paragraph = 0;
    /// How many bytes after a \u stand for its character in readers without Unicode (\uc).
    std::int32_t fallbackLength = 1;
    Destination destination = Destination::body;
    /// Where the text goes that replaces an alternative.
    Destination unicodeDestination = Destination::body;
    /// The group is a field, into which its instruction hands the link.
    bool isField = false;

    bool operator==(const GroupState&) const = default;
};

/// The states around the groups that are open. Groups opened one inside the other in the same state take the room
/// of one.
class GroupStack {
public:
    void push(const GroupState& state)
    {
        if (levels_.empty() || !(levels_.back().state == state)) {
            levels_.push_back({state, 0});
        }
        ++levels_.back().groups;
        ++depth_;
    }

    /// The state that the innermost group was opened in; there must be an open group.
    GroupState pop()
    {
        const GroupState state = levels_.back().state;
        if (--levels_.back().groups == 0) {
            levels_.pop_back();
        }
        --depth_;
        return state;
    }

    std::size_t depth() const { return depth_; }

private:
    struct Level {
        GroupState state;
        std::size_t groups;
    };

    std::vector<Level> levels_;
    std::size_t depth_ = 0;
};

/// A canonical state, whose `font` is an index into the families, as attributes.
TextAttributes textAttributes(const CharacterState& state);
ParagraphFormat paragraphFormat(const ParagraphState& state);
TabStop toTabStop(const TabState& state);

} // namespace corvellane::rtf
