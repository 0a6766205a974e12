#include "rtf/TextDecoder.h"

#include "rtf/ByteScan.h"
#include "rtf/Utf8.h"

namespace corvellane::rtf {
namespace {

constexpr char32_t lineBreak = U'\u2028';

bool isText(char32_t code)
{
    return code >= 0x20 || code == '\t';
}

} // namespace

void TextDecoder::appendBytes(std::string_view bytes, CodePage& page, std::string& out)
{
    while (!bytes.empty()) {
        if (leadLength_ == 0) {
            const std::size_t length = page.hasAscii() ? textLength<TextBytes::ascii>(bytes) : 0;
            out.append(bytes.substr(0, length));
            bytes.remove_prefix(length);
            bytes.remove_prefix(appendCharacters(bytes, page, out));
        }
        if (!bytes.empty()) {
            appendByte(bytes[0], page, out);
            bytes.remove_prefix(1);
        }
    }
}

/// Appends what stands at the beginning and is whole and beyond doubt: characters of one and two bytes, above ASCII.
/// Gives the number of bytes taken.
std::size_t TextDecoder::appendCharacters(std::string_view bytes, CodePage& page, std::string& out)
{
    std::array<char, 512> buffer;
    char* to = buffer.data();
    const char* from = bytes.data();
    const char* const end = from + bytes.size();
    while (
        from != end && to + longestUtf8 <= buffer.data() + buffer.size() && static_cast<unsigned char>(*from) >= 0x80) {
        char32_t code = page.decode(*from);
        const bool isPair = code == CodePage::incomplete && end - from > 1;
        if (isPair) {
            code = page.decode(from[0], from[1]);
        }
        if (code > 0x10FFFF) {
            break;
        }
        from += isPair ? 2 : 1;
        to += writeUtf8(to, code);
    }
    out.append(buffer.data(), static_cast<std::size_t>(to - buffer.data()));
    return static_cast<std::size_t>(from - bytes.data());
}

void TextDecoder::appendByte(char byte, CodePage& page, std::string& out)
{
    if (leadLength_ != 0 && continueCharacter(byte, page, out)) {
        return;
    }
    const char32_t code = page.decode(byte);
    if (code == CodePage::incomplete) {
        lead_[0] = byte;
        leadLength_ = 1;
        highSurrogate_ = 0;
        appendPending(out, loneCharacter(byte));
    } else if (isText(code) || code == '\n') {
        appendUtf8(out, code == '\n' ? lineBreak : code);
    }
}

/// What a byte that begins a character in its own page is in the substitute.
char32_t TextDecoder::loneCharacter(char byte) const
{
    const char32_t code = substitute_ != nullptr ? substitute_->decode(byte) : CodePage::invalid;
    return code <= 0x10FFFF ? code : replacementCharacter;
}

/// False when the byte begins a character of its own.
bool TextDecoder::continueCharacter(char byte, CodePage& page, std::string& out)
{
    lead_[leadLength_] = byte;
    const char32_t code
        = endsWithPending(out) ? page.decode(std::string_view(lead_.data(), leadLength_ + 1)) : CodePage::invalid;
    if (code == CodePage::incomplete && leadLength_ + 1 < lead_.size()) {
        ++leadLength_;
        return true;
    }
    leadLength_ = 0;
    if (code > 0x10FFFF) {
        return false;
    }
    out.resize(pendingBegin_);
    appendUtf8(out, code);
    return true;
}

bool TextDecoder::completesCharacter(char byte, CodePage& page, const std::string& out)
{
    lead_[leadLength_] = byte;
    return awaitsTrail() && endsWithPending(out)
        && page.decode(std::string_view(lead_.data(), leadLength_ + 1)) <= 0x10FFFF;
}

void TextDecoder::appendUnit(char32_t code, std::string& out)
{
    const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
    if (isSurrogate) {
        appendSurrogate(code, out);
        return;
    }
    highSurrogate_ = 0;
    if (isText(code)) {
        appendUtf8(out, code);
    }
}

void TextDecoder::appendSurrogate(char32_t code, std::string& out)
{
    const char32_t high = highSurrogate_;
    highSurrogate_ = 0;
    if (code <= 0xDBFF) {
        highSurrogate_ = code;
        appendPending(out, replacementCharacter);
    } else if (high != 0 && endsWithPending(out)) {
        out.resize(pendingBegin_);
        appendUtf8(out, 0x10000 + ((high - 0xD800) << 10U) + (code - 0xDC00));
    } else {
        appendUtf8(out, code);
    }
}

void TextDecoder::appendPending(std::string& out, char32_t code)
{
    pendingBegin_ = out.size();
    appendUtf8(out, code);
    pendingIn_ = &out;
    pendingEnd_ = out.size();
}

} // namespace corvellane::rtf
