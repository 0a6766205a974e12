#pragma once

#include "rtf/AttributedText.h"
#include "rtf/FontTable.h"
#include "rtf/Interner.h"
#include "rtf/State.h"

#include <cstdint>
#include <string>
#include <vector>

namespace corvellane::rtf {

/// Builds attributed text run by run and paragraph by paragraph out of states of formatting.
class TextBuilder {
public:
    /// Room is set aside for `expectedLength` bytes of text; it costs memory only as it is filled.
    explicit TextBuilder(std::size_t expectedLength) { result_.text.reserve(expectedLength); }

    std::uint32_t indexOf(const CharacterState& state) { return characters_.index(state); }
    std::uint32_t indexOf(const ParagraphState& state) { return paragraphs_.index(state); }
    const CharacterState& character(std::uint32_t index) const { return characters_[index]; }
    const ParagraphState& paragraph(std::uint32_t index) const { return paragraphs_[index]; }

    /// The text to append to, once a run is begun.
    std::string& text() { return result_.text; }

    /// What is appended from here on looks like that; true when this is not how the text before looks.
    bool beginRun(std::uint32_t character, const FontTable& fonts);

    /// Ends the paragraph in that character and paragraph formatting.
    void endParagraph(std::uint32_t character, std::uint32_t paragraph, const FontTable& fonts);

    bool paragraphIsEmpty() const { return result_.runs.size() == firstRun_ && result_.text.size() == runBegin_; }

    /// The last tab stop of a paragraph whose last one was `state.previous` and which gets one more.
    std::uint32_t addTab(TabState state);

    /// The number by which a CharacterState knows a link.
    std::uint32_t addLink(std::string target);

    /// The whole text; nothing may be called after it.
    AttributedText take(const FontTable& fonts);

private:
    std::uint32_t attributesOf(std::uint32_t character, const FontTable& fonts);
    void endRun();

    AttributedText result_;
    Interner<CharacterState> characters_;
    Interner<ParagraphState> paragraphs_;
    Interner<TabState> tabs_;
    /// The tab stop that followed each one last, 0 for none; at the index 0 what followed none.
    std::vector<std::uint32_t> nextTabs_{0};
    /// States told apart only by what is visible in them.
    Interner<CharacterState> attributes_;
    /// 1 + the index of the attributes of a character state, 0 where not yet known.
    std::vector<std::uint32_t> attributesOfCharacters_;
    std::uint32_t runAttributes_ = 0;
    std::size_t runBegin_ = 0;
    std::size_t firstRun_ = 0;
};

} // namespace corvellane::rtf
