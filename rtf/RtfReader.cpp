#include "rtf/RtfReader.h"

#include "rtf/RtfInterpreter.h"

#include <algorithm>

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

} // namespace

Expected<AttributedText, RtfFailure> readRtf(std::string_view bytes)
{
    const std::string_view rtf = withoutLead(bytes);
    if (!rtf.starts_with("{\\rtf") || rtf.size() > largestRtf) {
        return tl::unexpected(RtfFailure::notRtf);
    }
    RtfInterpreter interpreter(rtf);
    if (!interpreter.run()) {
        return tl::unexpected(RtfFailure::incomplete);
    }
    return interpreter.take();
}

} // namespace corvellane::rtf
