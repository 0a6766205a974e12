#pragma once

#include "rtf/AttributedText.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace corvellane::rtf {

/// The character formatting in effect. The family of the look is left to the font.
struct CharacterState {
    TextAttributes look;
    /// Index into the font table; -1 before any font is chosen.
    std::int32_t font = -1;
    /// The font of East Asian characters; -1 where `font` is that too.
    std::int32_t eastAsianFont = -1;
    bool hidden = false;
    std::array<std::uint8_t, 3> padding{};
};

/// Where the text of a group goes.
enum class Destination : std::uint8_t {
    body,
    skipped,
    fontTable,
    fontAlternative,
    colorTable,
    fieldInstruction,
    /// Text for readers that know no Unicode, and within it the Unicode text in its stead (\upr and \ud).
    alternative,
    /// What lists look like, and of that what stands before an item.
    lists,
    listLevel,
    levelText,
    /// The same for the paragraph that it stands in.
    numbering,
    numberingBefore,
    numberingAfter,
    picture,
    propertyName,
    propertyValue,
};

/// The formatting in effect inside a group, as its beginning saves it and its end restores it.
struct GroupState {
    /// Indices of a CharacterState and a ParagraphFormat.
    std::uint32_t character = 0;
    std::uint32_t paragraph = 0;
    /// How many bytes after a \u stand for its character in readers without Unicode (\uc).
    std::int32_t fallbackLength = 1;
    Destination destination = Destination::body;
    /// Where the text goes that replaces an alternative.
    Destination unicodeDestination = Destination::body;
    /// The group is a field, into which its instruction hands the link.
    bool isField = false;
    /// The field's result says nothing here.
    bool dropsResult = false;
    /// The group is within a footnote or an endnote.
    bool inNote = false;
    /// The group is within a shape.
    bool inShape = false;

    bool operator==(const GroupState&) const = default;
};

/// The states around the groups that are open. Groups opened one inside the other in the same state take the room
/// of one; of states that differ no more than 65,536 are kept apart.
class GroupStack {
public:
    void push(const GroupState& state)
    {
        const bool isKnown = !levels_.empty() && (levels_.back().state == state || levels_.size() == mostLevels);
        if (!isKnown) {
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

    static constexpr std::size_t mostLevels = 65536;

    std::vector<Level> levels_;
    std::size_t depth_ = 0;
};

} // namespace corvellane::rtf
