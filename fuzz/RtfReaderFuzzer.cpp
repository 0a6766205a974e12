#include "rtf/Reader.h"
#include "tools/AgreementJson.h"
#include "tools/AgreementReport.h"

#include <algorithm>
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

void requireLook(const rtf::AttributedText& text, const rtf::TextAttributes& look)
{
    require(look.family < text.families.size() && look.size > 0);
    require(look.link <= text.links.size() && look.picture <= text.pictures.size());
}

/// Every stretch begins where the one before it ends, and the last one ends with the text.
void requireStretches(const std::vector<rtf::Stretch>& stretches, std::size_t values, std::size_t length)
{
    std::uint32_t place = 0;
    for (const rtf::Stretch& stretch : stretches) {
        require(stretch.end > place && stretch.index < values);
        place = stretch.end;
    }
    require(place == length);
}

void requireWhole(const rtf::AttributedText& text)
{
    requireStretches(text.runs, text.attributes.size(), text.text.size());
    requireStretches(text.formatStretches, text.formats.size(), text.text.size());
    require(std::ranges::count(text.text, rtf::mark::row) == static_cast<std::ptrdiff_t>(text.rows.size()));
    for (const rtf::TextAttributes& look : text.attributes) {
        requireLook(text, look);
    }
    for (const rtf::Paragraph& paragraph : text.paragraphs()) {
        require(text.tabsOf(text.formats.at(paragraph.format)).size() <= 64);
        for (const rtf::Run& run : text.runsOf(paragraph)) {
            requireText(run.text);
        }
    }
    for (const std::uint32_t row : text.rows) {
        require(text.cellsOf(text.rowFormats.at(row)).size() <= 128);
    }
}

void requireBounded(const rtf::AttributedText& text, std::size_t size)
{
    require(text.text.size() <= 5 * size);
    require(text.runs.size() <= size && text.attributes.size() <= size && text.formats.size() <= size);
    require(text.tabStops.size() <= size && text.links.size() <= size && text.pictures.size() <= size);
    for (const std::string& link : text.links) {
        requireText(link);
    }
    for (const rtf::FontFamily& family : text.families) {
        requireText(family.name);
        requireText(family.alternative);
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
        corvellane::agreementPlainText(*text);
    }
    return 0;
}
