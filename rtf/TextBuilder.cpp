#include "rtf/TextBuilder.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace corvellane::rtf {
namespace {

constexpr std::uint16_t mostTabs = 64;

/// Different fonts may be faces of one family, and a face may be bold by itself.
CharacterState visibleState(CharacterState state, const FontTable& fonts)
{
    const Font& font = fonts.font(state.font);
    state.font = static_cast<std::int32_t>(font.family);
    state.bold = state.bold || font.bold;
    state.italic = state.italic || font.italic;
    state.hidden = false;
    return state;
}

} // namespace

std::uint32_t TextBuilder::attributesOf(std::uint32_t character, const FontTable& fonts)
{
    if (character >= attributesOfCharacters_.size()) {
        attributesOfCharacters_.resize(characters_.values().size());
    }
    std::uint32_t& known = attributesOfCharacters_[character];
    if (known == 0) {
        known = 1 + attributes_.index(visibleState(characters_[character], fonts));
    }
    return known - 1;
}

bool TextBuilder::beginRun(std::uint32_t character, const FontTable& fonts)
{
    const std::uint32_t attributes = attributesOf(character, fonts);
    if (attributes == runAttributes_) {
        return false;
    }
    endRun();
    runAttributes_ = attributes;
    return true;
}

void TextBuilder::endRun()
{
    const std::size_t end = result_.text.size();
    if (end != runBegin_) {
        result_.runs.push_back(
            {static_cast<std::uint32_t>(runBegin_), static_cast<std::uint32_t>(end), runAttributes_});
        runBegin_ = end;
    }
}

void TextBuilder::endParagraph(std::uint32_t character, std::uint32_t paragraph, const FontTable& fonts)
{
    endRun();
    result_.paragraphs.push_back({static_cast<std::uint32_t>(firstRun_),
        static_cast<std::uint32_t>(result_.runs.size()), paragraph, attributesOf(character, fonts)});
    firstRun_ = result_.runs.size();
}

/// Paragraph after paragraph sets the same stops: the one that came next last time is tried before any other.
std::uint32_t TextBuilder::addTab(TabState state)
{
    std::uint32_t& next = nextTabs_[state.previous];
    if (next != 0 && tabs_[next - 1].position == state.position && tabs_[next - 1].kind == state.kind) {
        return next;
    }
    if (state.previous != 0) {
        state.count = static_cast<std::uint16_t>(tabs_[state.previous - 1].count + 1);
    }
    if (state.count > mostTabs) {
        return state.previous;
    }
    next = 1 + tabs_.index(state);
    const std::uint32_t added = next;
    nextTabs_.resize(tabs_.values().size() + 1);
    return added;
}

std::uint32_t TextBuilder::addLink(std::string target)
{
    result_.links.push_back(std::move(target));
    return static_cast<std::uint32_t>(result_.links.size());
}

AttributedText TextBuilder::take(const FontTable& fonts)
{
    const auto convert = [](const auto& states, auto& values, auto conversion) {
        values.reserve(states.size());
        std::ranges::transform(states, std::back_inserter(values), conversion);
    };
    convert(attributes_.values(), result_.attributes, textAttributes);
    convert(paragraphs_.values(), result_.formats, paragraphFormat);
    convert(tabs_.values(), result_.tabStops, toTabStop);
    result_.families = fonts.families();
    return std::move(result_);
}

} // namespace corvellane::rtf
