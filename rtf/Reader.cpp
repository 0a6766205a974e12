#include "rtf/Reader.h"

#include "rtf/Interpreter.h"
#include "rtf/Utf8.h"
#include "rtf/Writer.h"

#include <algorithm>
#include <optional>

namespace corvellane::rtf {
namespace {

std::string_view withoutLead(std::string_view bytes)
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    const auto trim = [&] { bytes.remove_prefix(std::min(bytes.find_first_not_of(" \t\r\n\v\f"), bytes.size())); };
    trim();
    if (bytes.starts_with(byteOrderMark)) {
        bytes.remove_prefix(byteOrderMark.size());
        trim();
    }
    return bytes;
}

Expected<AttributedText, ReadFailure> readBytes(
    std::string_view bytes, std::string* own, std::optional<bool> rawIsUnicode = std::nullopt)
{
    const std::string_view rtf = withoutLead(bytes);
    if (!rtf.starts_with("{\\rtf") || rtf.size() > largestInput) {
        return tl::unexpected(ReadFailure::notRtf);
    }
    Writer writer(rtf, rawIsUnicode);
    if (!interpret(rtf, own, writer)) {
        return tl::unexpected(ReadFailure::incomplete);
    }
    return writer.take();
}

} // namespace

Expected<AttributedText, ReadFailure> read(std::string_view bytes)
{
    return highByteOfUtf16(bytes) ? readAway(std::string(bytes)) : readBytes(bytes, nullptr);
}

Expected<AttributedText, ReadFailure> readAway(std::string bytes)
{
    const auto highByte = highByteOfUtf16(bytes);
    if (highByte) {
        bytes = fromUtf16(std::string_view(bytes).substr(2), *highByte);
    }
    return readBytes(bytes, &bytes, highByte ? std::optional(true) : std::nullopt);
}

} // namespace corvellane::rtf
