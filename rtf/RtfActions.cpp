#include "rtf/RtfInterpreter.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace corvellane::rtf {
namespace {

constexpr std::int32_t largestSize = 0x7FFF;

std::int32_t parameterOr(const RtfToken& token, std::int32_t absent)
{
    return token.hasParameter ? token.parameter : absent;
}

} // namespace

RtfInterpreter::Handler RtfInterpreter::handlerOf(RtfAction action)
{
    static constexpr auto rows = std::to_array<std::pair<RtfAction, Handler>>({
        {RtfAction::nothing, &RtfInterpreter::doNothing},
        {RtfAction::character, &RtfInterpreter::doCharacter},
        {RtfAction::destination, &RtfInterpreter::doDestination},
        {RtfAction::unicodeAlternative, &RtfInterpreter::doUnicodeAlternative},
        {RtfAction::field, &RtfInterpreter::doField},
        {RtfAction::codePage, &RtfInterpreter::doCodePage},
        {RtfAction::cocoa, &RtfInterpreter::doCocoa},
        {RtfAction::font, &RtfInterpreter::doFont},
        {RtfAction::fontCharset, &RtfInterpreter::doFontCharset},
        {RtfAction::fontCodePage, &RtfInterpreter::doFontCodePage},
        {RtfAction::colorPart, &RtfInterpreter::doColorPart},
        {RtfAction::plain, &RtfInterpreter::doPlain},
        {RtfAction::flag, &RtfInterpreter::doFlag},
        {RtfAction::noUnderline, &RtfInterpreter::doNoUnderline},
        {RtfAction::script, &RtfInterpreter::doScript},
        {RtfAction::capitals, &RtfInterpreter::doCapitals},
        {RtfAction::offset, &RtfInterpreter::doOffset},
        {RtfAction::size, &RtfInterpreter::doSize},
        {RtfAction::color, &RtfInterpreter::doColor},
        {RtfAction::background, &RtfInterpreter::doBackground},
        {RtfAction::unicode, &RtfInterpreter::doUnicode},
        {RtfAction::fallbackLength, &RtfInterpreter::doFallbackLength},
        {RtfAction::paragraphDefaults, &RtfInterpreter::doParagraphDefaults},
        {RtfAction::alignment, &RtfInterpreter::doAlignment},
        {RtfAction::length, &RtfInterpreter::doLength},
        {RtfAction::lineMultiple, &RtfInterpreter::doLineMultiple},
        {RtfAction::lineExactly, &RtfInterpreter::doLineExactly},
        {RtfAction::tabKind, &RtfInterpreter::doTabKind},
        {RtfAction::tabStop, &RtfInterpreter::doTabStop},
        {RtfAction::inTable, &RtfInterpreter::doInTable},
        {RtfAction::tableDepth, &RtfInterpreter::doTableDepth},
        {RtfAction::pageBreakBefore, &RtfInterpreter::doPageBreakBefore},
        {RtfAction::paragraph, &RtfInterpreter::doParagraph},
        {RtfAction::cell, &RtfInterpreter::doCell},
        {RtfAction::row, &RtfInterpreter::doRow},
        {RtfAction::page, &RtfInterpreter::doPage},
        {RtfAction::samePage, &RtfInterpreter::doSamePage},
    });
    static constexpr auto handlers = [] {
        std::array<Handler, static_cast<std::size_t>(RtfAction::count)> filled{};
        static_assert(rows.size() == filled.size());
        for (const auto& [key, handler] : rows) {
            filled[static_cast<std::size_t>(key)] = handler;
        }
        return filled;
    }();
    return handlers[static_cast<std::size_t>(action)];
}

void RtfInterpreter::doCharacter(std::int32_t value, const RtfToken&)
{
    put(static_cast<char32_t>(value));
}

void RtfInterpreter::doDestination(std::int32_t value, const RtfToken&)
{
    const auto destination = static_cast<Destination>(value);
    if (destination == Destination::fieldInstruction) {
        // The instruction of a field within an instruction is none of the outer one's text, its result is.
        const bool nested = group_.destination == Destination::fieldInstruction;
        group_.destination = nested ? Destination::skipped : destination;
        instruction_.resize(nested ? instruction_.size() : 0);
    } else {
        group_.unicodeDestination = group_.destination;
        group_.destination = destination;
    }
    sinkChanged_ = true;
}

void RtfInterpreter::doUnicodeAlternative(std::int32_t, const RtfToken&)
{
    if (group_.destination == Destination::alternative) {
        group_.destination = group_.unicodeDestination;
        sinkChanged_ = true;
    }
}

void RtfInterpreter::doField(std::int32_t, const RtfToken&)
{
    group_.isField = true;
}

void RtfInterpreter::doCodePage(std::int32_t value, const RtfToken& token)
{
    const int page = value != 0 ? value : token.parameter;
    if (page > 0 && pages_.find(page) != nullptr) {
        documentPage_ = page;
        sinkChanged_ = true;
    }
}

void RtfInterpreter::doCocoa(std::int32_t, const RtfToken&)
{
    isCocoa_ = true;
}

void RtfInterpreter::doFont(std::int32_t, const RtfToken& token)
{
    const std::int32_t number = parameterOr(token, 0);
    if (group_.destination == Destination::fontTable) {
        fonts_.beginEntry(number);
        sinkChanged_ = true;
    } else {
        changeCharacter().font = fonts_.find(number);
    }
}

void RtfInterpreter::doFontCharset(std::int32_t, const RtfToken& token)
{
    fonts_.setCharset(parameterOr(token, 0));
    sinkChanged_ = true;
}

void RtfInterpreter::doFontCodePage(std::int32_t, const RtfToken& token)
{
    if (token.parameter > 0 && pages_.find(token.parameter) != nullptr) {
        fonts_.setCodePage(token.parameter);
        sinkChanged_ = true;
    }
}

void RtfInterpreter::doColorPart(std::int32_t value, const RtfToken& token)
{
    colors_.setPart(token.parameter, value);
}

void RtfInterpreter::doPlain(std::int32_t, const RtfToken&)
{
    CharacterState plain;
    plain.font = fonts_.find(0);
    plain.link = character_.link;
    changeCharacter() = plain;
}

void RtfInterpreter::doFlag(std::int32_t value, const RtfToken& token)
{
    changeCharacter()[static_cast<CharacterFlag>(value)] = static_cast<std::uint8_t>(parameterOr(token, 1) != 0);
}

void RtfInterpreter::doNoUnderline(std::int32_t, const RtfToken&)
{
    changeCharacter()[CharacterFlag::underline] = 0;
}

void RtfInterpreter::doScript(std::int32_t value, const RtfToken& token)
{
    changeCharacter().script = static_cast<std::uint8_t>(parameterOr(token, 1) != 0 ? value : 0);
}

void RtfInterpreter::doCapitals(std::int32_t value, const RtfToken& token)
{
    changeCharacter().capitals = static_cast<std::uint8_t>(parameterOr(token, 1) != 0 ? value : 0);
}

void RtfInterpreter::doOffset(std::int32_t value, const RtfToken& token)
{
    changeCharacter().offset = value * std::clamp(parameterOr(token, 6), -largestSize, largestSize);
}

void RtfInterpreter::doSize(std::int32_t, const RtfToken& token)
{
    const std::int32_t size = parameterOr(token, 0);
    changeCharacter().size = size > 0 ? std::min(size, largestSize) : CharacterState().size;
}

void RtfInterpreter::doColor(std::int32_t, const RtfToken& token)
{
    const std::int32_t index = parameterOr(token, 0);
    changeCharacter().color = index == 0 && isCocoa_ ? 0 : colors_.color(index);
}

void RtfInterpreter::doBackground(std::int32_t value, const RtfToken& token)
{
    const std::int32_t index = parameterOr(token, 0);
    const bool none = index == 0 || (index == 1 && value == 1 && isCocoa_);
    changeCharacter().background = none ? 0 : colors_.color(index);
}

void RtfInterpreter::doUnicode(std::int32_t, const RtfToken& token)
{
    const bool isUnit = token.parameter < 0 || token.parameter > 0x10FFFF;
    const auto code = static_cast<char32_t>(isUnit ? token.parameter & 0xFFFF : token.parameter);
    fallback_ = group_.fallbackLength;
    std::string* const out = sink();
    if (out == nullptr) {
        return;
    }
    if (code == U'\u2029') {
        doParagraph(0, token);
    } else if (!page_->hasAscii() && code >= 0xF020 && code <= 0xF0FF) {
        decoder_.appendUnit(page_->decode(static_cast<char>(code & 0xFFU)), *out);
    } else {
        decoder_.appendUnit(code, *out);
    }
}

void RtfInterpreter::doFallbackLength(std::int32_t, const RtfToken& token)
{
    group_.fallbackLength = std::max(parameterOr(token, 1), 0);
}

void RtfInterpreter::doParagraphDefaults(std::int32_t, const RtfToken&)
{
    changeParagraph() = {};
    tabKind_ = 0;
}

void RtfInterpreter::doAlignment(std::int32_t value, const RtfToken&)
{
    changeParagraph().alignment = static_cast<std::uint8_t>(value);
}

void RtfInterpreter::doLength(std::int32_t value, const RtfToken& token)
{
    changeParagraph().lengths[static_cast<std::size_t>(value)] = parameterOr(token, 0);
}

void RtfInterpreter::doLineMultiple(std::int32_t, const RtfToken& token)
{
    changeParagraph().lineIsMultiple = static_cast<std::uint8_t>(parameterOr(token, 1) != 0);
}

void RtfInterpreter::doLineExactly(std::int32_t, const RtfToken& token)
{
    const std::int32_t height = std::max(token.parameter, 0);
    changeParagraph().lengths[static_cast<std::size_t>(ParagraphLength::line)] = -height;
}

void RtfInterpreter::doTabKind(std::int32_t value, const RtfToken&)
{
    tabKind_ = static_cast<std::uint16_t>(value);
}

void RtfInterpreter::doTabStop(std::int32_t, const RtfToken& token)
{
    const TabState tab{.position = token.parameter, .previous = paragraph_.lastTab, .kind = tabKind_};
    changeParagraph().lastTab = builder_.addTab(tab);
    tabKind_ = 0;
}

void RtfInterpreter::doInTable(std::int32_t, const RtfToken& token)
{
    changeParagraph().inTable = static_cast<std::uint8_t>(parameterOr(token, 1) != 0);
}

void RtfInterpreter::doTableDepth(std::int32_t, const RtfToken& token)
{
    changeParagraph().inTable = static_cast<std::uint8_t>(parameterOr(token, 1) > 0);
}

void RtfInterpreter::doPageBreakBefore(std::int32_t, const RtfToken& token)
{
    changeParagraph().pageBreakBefore = static_cast<std::uint8_t>(parameterOr(token, 1) != 0);
}

void RtfInterpreter::doParagraph(std::int32_t, const RtfToken&)
{
    if (group_.destination != Destination::body || character_.is(CharacterFlag::hidden)) {
        return;
    }
    if (paragraph_.inTable != 0) {
        put(U'\u2028');
    } else {
        endedCells_ = 0;
        endParagraph();
    }
}

void RtfInterpreter::doCell(std::int32_t, const RtfToken&)
{
    if (group_.destination != Destination::body) {
        return;
    }
    if (nestedRowEnded_ && builder_.paragraphIsEmpty()) {
        nestedRowEnded_ = false;
    } else {
        ++endedCells_;
    }
}

/// The end of the last cell parts it from nothing.
void RtfInterpreter::doRow(std::int32_t value, const RtfToken&)
{
    if (group_.destination != Destination::body) {
        return;
    }
    const bool isNested = value != 0;
    endedCells_ -= endedCells_ != 0 ? 1 : 0;
    sink();
    endParagraph();
    nestedRowEnded_ = isNested;
}

void RtfInterpreter::doPage(std::int32_t, const RtfToken&)
{
    if (group_.destination != Destination::body) {
        return;
    }
    if (!builder_.paragraphIsEmpty()) {
        endParagraph();
    }
    pageBreak_ = true;
}

void RtfInterpreter::doSamePage(std::int32_t, const RtfToken&)
{
    pageBreak_ = false;
}

} // namespace corvellane::rtf
