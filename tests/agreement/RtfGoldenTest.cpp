#include "agreement/AgreementFile.h"
#include "tools/AgreementReport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace corvellane {
namespace {

std::string fileText(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::filesystem::path> goldenFiles()
{
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(AGREEMENT_DATA)) {
        if (entry.path().extension() == ".rtf") {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

class RtfGolden : public testing::TestWithParam<std::filesystem::path> { };

/// Every data/NAME.rtf is read as the NAME.json beside it says.
TEST_P(RtfGolden, readsAsWritten)
{
    std::filesystem::path expected = GetParam();
    expected.replace_extension(".json");
    const auto text = readAgreement(GetParam().string());
    ASSERT_TRUE(std::holds_alternative<AttributedText>(text)) << GetParam();
    EXPECT_EQ(agreementJson(std::get<AttributedText>(text)), fileText(expected));
}

INSTANTIATE_TEST_SUITE_P(Files, RtfGolden, testing::ValuesIn(goldenFiles()), [](const auto& file) {
    std::string name = file.param.stem().string();
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
});

std::size_t countWhere(const AttributedText& text, bool (*holds)(const ParagraphFormat&))
{
    const auto formatHolds = [&](const Paragraph& paragraph) { return holds(text.formats[paragraph.format]); };
    return static_cast<std::size_t>(std::count_if(text.paragraphs.begin(), text.paragraphs.end(), formatHolds));
}

TEST(SampleAgreement, isReadWithEverythingItsAuthorPutIn)
{
    const auto result = readAgreement(SAMPLE_AGREEMENT);
    ASSERT_TRUE(std::holds_alternative<AttributedText>(result));
    const auto& text = std::get<AttributedText>(result);
    const std::string plain = agreementPlainText(text);
    EXPECT_TRUE(plain.starts_with("Corvellane Software Licence Agreement\n"));
    EXPECT_NE(plain.find("By choosing “Agree” in the installer"), plain.npos);
    EXPECT_NE(plain.find("\n\t•\tinstall the Software"), plain.npos);
    EXPECT_NE(plain.find("\n\td)\tget round the activation"), plain.npos);
    EXPECT_EQ(plain.find_first_of("\\{}"), plain.npos);
    EXPECT_EQ(plain.find("HYPERLINK"), plain.npos);
    EXPECT_EQ(text.links.size(), 3U);
    EXPECT_EQ(text.families, (std::vector<std::string>{"Helvetica", "Menlo"}));
    EXPECT_EQ(
        countWhere(text, [](const ParagraphFormat& format) { return format.alignment == Alignment::centre; }), 4U);
    EXPECT_EQ(countWhere(text, [](const ParagraphFormat& format) { return format.firstLineIndent == -36; }), 8U);
    EXPECT_GT(
        countWhere(text, [](const ParagraphFormat& format) { return format.alignment == Alignment::justified; }), 12U);
}

} // namespace
} // namespace corvellane
