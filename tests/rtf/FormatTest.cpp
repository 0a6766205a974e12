#include "rtf/Reader.h"

#include <gtest/gtest.h>

#include <string>

namespace corvellane::rtf {
namespace {

/// The text of RTF whose outer group holds `body`.
AttributedText readBody(const std::string& body)
{
    return read("{\\rtf1\\ansi" + body + "}").value();
}

TEST(RtfFormat, boundsTheNumberOfTabStops)
{
    std::string stops;
    for (int position = 1; position <= 100; ++position) {
        stops += "\\tx" + std::to_string(position * 20);
    }
    const AttributedText text = readBody(stops + " a\\par\\pard\\tx20\\tx40 b");
    const auto first = text.tabsOf(text.formats.at(text.paragraphs.at(0).format));
    ASSERT_EQ(first.size(), 64U);
    EXPECT_EQ(first.front().position, 1);
    EXPECT_EQ(first.back().position, 64);
    EXPECT_EQ(text.tabStops.size(), 64U) << "a chain that begins as another one is part of it";
}

TEST(RtfFormat, keepsEveryLookAndLinkOnce)
{
    EXPECT_EQ(readBody("{\\fonttbl\\f0 A-Bold;\\f1 A;}\\f0 a\\f1\\b b\\f0\\b0 c").runs.size(), 1U);
    EXPECT_EQ(readBody(" a\\v").attributes.size(), 1U);
    EXPECT_TRUE(readBody("{\\field{\\*\\fldinst PAGEREF \"http://a\"}{\\fldrslt x}}").links.empty());
}

TEST(RtfFormat, takesNoRawByteForAnotherInTheNamesOfFonts)
{
    const auto family = [](const std::string& font) {
        const AttributedText text = readBody("{\\fonttbl{\\f4\\fcharset128 " + font + ";}}\\f4 x");
        return text.families.at(text.attributes.at(0).family);
    };
    EXPECT_EQ(family("A\x83"), "A\uFFFD");
    EXPECT_EQ(family("\x83\x7D"), "マ");
}

} // namespace
} // namespace corvellane::rtf
