#include "rtf/Reader.h"
#include "tools/AgreementReport.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace corvellane {
namespace {

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

std::size_t sequenceLength(unsigned char lead)
{
    if (lead < 0x80) {
        return 1;
    }
    require(lead >= 0xC2 && lead <= 0xF4);
    return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

/// UTF-8 as RFC 3629 has it, without control characters but the tab.
void requireText(std::string_view text)
{
    while (!text.empty()) {
        const auto lead = static_cast<unsigned char>(text[0]);
        const std::size_t length = sequenceLength(lead);
        require(length <= text.size() && (lead >= 0x20 || lead == '\t'));
        for (std::size_t index = 1; index < length; ++index) {
            require((static_cast<unsigned char>(text[index]) & 0xC0U) == 0x80);
        }
        const auto second = static_cast<unsigned char>(length > 1 ? text[1] : 0);
        require(lead != 0xE0 || second >= 0xA0);
        require(lead != 0xED || second < 0xA0);
        require(lead != 0xF0 || second >= 0x90);
        require(lead != 0xF4 || second < 0x90);
        text.remove_prefix(length);
    }
}

void requireRun(const rtf::AttributedText& text, const rtf::Run& run, std::uint32_t begin)
{
    require(run.begin == begin && run.end > run.begin && run.end <= text.text.size());
    requireText(text.textOf(run));
    const rtf::TextAttributes& attributes = text.attributes.at(run.attributes);
    require(attributes.family < text.families.size() && attributes.size > 0);
    require(!attributes.link || *attributes.link < text.links.size());
}

void requireWhole(const rtf::AttributedText& text)
{
    std::uint32_t nextRun = 0;
    std::uint32_t nextByte = 0;
    for (const rtf::Paragraph& paragraph : text.paragraphs) {
        require(paragraph.firstRun == nextRun && paragraph.endRun >= nextRun && paragraph.endRun <= text.runs.size());
        require(paragraph.endAttributes < text.attributes.size());
        require(text.tabsOf(text.formats.at(paragraph.format)).size() <= 64);
        for (const rtf::Run& run : text.runsOf(paragraph)) {
            requireRun(text, run, nextByte);
            nextByte = run.end;
        }
        nextRun = paragraph.endRun;
    }
    require(nextRun == text.runs.size() && nextByte == text.text.size());
}

void requireBounded(const rtf::AttributedText& text, std::size_t size)
{
    require(text.text.size() <= 3 * size);
    require(text.runs.size() <= size && text.paragraphs.size() <= size && text.attributes.size() <= size);
    require(text.formats.size() <= size && text.tabStops.size() <= size && text.links.size() <= size);
    for (const std::string& link : text.links) {
        requireText(link);
    }
    for (const std::string& family : text.families) {
        requireText(family);
    }
}

} // namespace
} // namespace corvellane

// NOLINTNEXTLINE(readability-identifier-naming): libFuzzer calls it by this name.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    if (const auto text = corvellane::rtf::read(bytes)) {
        corvellane::requireWhole(*text);
        corvellane::requireBounded(*text, size);
        corvellane::agreementJson(*text);
    }
    return 0;
}
