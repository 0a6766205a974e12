#pragma once

#include "rtf/CodePages.h"
#include "rtf/ColorTable.h"
#include "rtf/FontTable.h"
#include "rtf/GroupStack.h"
#include "rtf/RtfControlWords.h"
#include "rtf/RtfLexer.h"
#include "rtf/RtfState.h"
#include "rtf/TextBuilder.h"
#include "rtf/TextDecoder.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace corvellane::rtf {

/// Carries out RTF token by token (RTF 1.9.1), building the text as it goes.
class RtfInterpreter {
public:
    explicit RtfInterpreter(std::string_view bytes);

    /// Goes through the outer group; false when it never closes.
    bool run();

    /// The text of the outer group, after run() has given true.
    AttributedText take() { return builder_.take(fonts_); }

private:
    using Handler = void (RtfInterpreter::*)(std::int32_t value, const RtfToken& token);
    static Handler handlerOf(RtfAction action);

    void openGroup();
    void closeGroup();
    void onWord(const RtfToken& token);
    void onSymbol(const RtfToken& token);
    void onBytes(std::string_view bytes);
    std::string_view withoutFallback(std::string_view bytes);
    void onText(const RtfToken& token);
    void skipGroup();
    bool isSkipping(RtfAction action) const;
    bool isFallback(const ControlWord* word);

    std::string* sink();
    void findSink();
    int codePage() const;
    void put(char32_t code);
    void putText(std::string_view bytes, bool ascii);
    void putFontNames(std::string_view bytes, bool ascii);
    void putTrailByte(std::string& out);
    void passText(std::string_view bytes);

    std::uint32_t characterIndex();
    std::uint32_t paragraphIndex();
    void restore(const GroupState& state);
    CharacterState& changeCharacter();
    ParagraphState& changeParagraph();
    void endParagraph();
    void endDocument();

    void doNothing(std::int32_t, const RtfToken&) { }
    void doCharacter(std::int32_t value, const RtfToken& token);
    void doDestination(std::int32_t value, const RtfToken& token);
    void doUnicodeAlternative(std::int32_t value, const RtfToken& token);
    void doField(std::int32_t value, const RtfToken& token);
    void doCodePage(std::int32_t value, const RtfToken& token);
    void doCocoa(std::int32_t value, const RtfToken& token);
    void doFont(std::int32_t value, const RtfToken& token);
    void doFontCharset(std::int32_t value, const RtfToken& token);
    void doFontCodePage(std::int32_t value, const RtfToken& token);
    void doColorPart(std::int32_t value, const RtfToken& token);
    void doPlain(std::int32_t value, const RtfToken& token);
    void doFlag(std::int32_t value, const RtfToken& token);
    void doNoUnderline(std::int32_t value, const RtfToken& token);
    void doScript(std::int32_t value, const RtfToken& token);
    void doCapitals(std::int32_t value, const RtfToken& token);
    void doOffset(std::int32_t value, const RtfToken& token);
    void doSize(std::int32_t value, const RtfToken& token);
    void doColor(std::int32_t value, const RtfToken& token);
    void doBackground(std::int32_t value, const RtfToken& token);
    void doUnicode(std::int32_t value, const RtfToken& token);
    void doFallbackLength(std::int32_t value, const RtfToken& token);
    void doParagraphDefaults(std::int32_t value, const RtfToken& token);
    void doAlignment(std::int32_t value, const RtfToken& token);
    void doLength(std::int32_t value, const RtfToken& token);
    void doLineMultiple(std::int32_t value, const RtfToken& token);
    void doLineExactly(std::int32_t value, const RtfToken& token);
    void doTabKind(std::int32_t value, const RtfToken& token);
    void doTabStop(std::int32_t value, const RtfToken& token);
    void doInTable(std::int32_t value, const RtfToken& token);
    void doTableDepth(std::int32_t value, const RtfToken& token);
    void doPageBreakBefore(std::int32_t value, const RtfToken& token);
    void doParagraph(std::int32_t value, const RtfToken& token);
    void doCell(std::int32_t value, const RtfToken& token);
    void doRow(std::int32_t value, const RtfToken& token);
    void doPage(std::int32_t value, const RtfToken& token);
    void doSamePage(std::int32_t value, const RtfToken& token);

    RtfLexer lexer_;
    TextBuilder builder_;
    TextDecoder decoder_;
    CodePages pages_;
    FontTable fonts_;
    ColorTable colors_;
    GroupStack groups_;

    /// What is in effect; `character` and `paragraph` of the group's state are up to date unless changed.
    GroupState group_;
    CharacterState character_;
    ParagraphState paragraph_;
    bool characterChanged_ = true;
    bool paragraphChanged_ = true;

    /// Where text goes, null for nowhere, and how its bytes are read; found anew when something has changed.
    std::string* sink_ = nullptr;
    CodePage* page_ = nullptr;
    bool sinkChanged_ = true;

    int documentPage_ = 1252;
    bool isCocoa_ = false;
    bool groupJustOpened_ = false;
    /// A \* was the last token.
    bool isOptional_ = false;
    /// What is left of the fallback of the last \u.
    std::int32_t fallback_ = 0;
    std::uint16_t tabKind_ = 0;
    bool pageBreak_ = false;
    bool nestedRowEnded_ = false;
    /// Cells that have ended in this row since its last text.
    std::size_t endedCells_ = 0;
    std::string instruction_;
    std::string passedText_;
};

} // namespace corvellane::rtf
