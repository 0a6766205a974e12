#include "rtf/Reader.h"
#include "tests/ScratchFolder.h"
#include "tools/AgreementReport.h"

#include <map>

namespace corvellane::rtf {
namespace {

/// Every data/NAME.rtf is read as the NAME.json beside it says.
TEST(RtfGolden, readsEveryFileAsWritten)
{
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(AGREEMENT_DATA)) {
        std::filesystem::path path = entry.path();
        if (path.extension() == ".rtf") {
            const auto text = read(readFile(path.string()));
            ASSERT_TRUE(text) << path;
            EXPECT_EQ(agreementJson(*text), readFile(path.replace_extension(".json"))) << path;
            ++files;
        }
    }
    EXPECT_EQ(files, 6);
}

TEST(SampleAgreement, isReadWithEverythingItsAuthorPutIn)
{
    const auto result = read(readFile(SAMPLE_AGREEMENT));
    ASSERT_TRUE(result);
    const AttributedText& text = *result;
    const std::string plain = agreementPlainText(text);
    EXPECT_TRUE(plain.starts_with("Corvellane Software Licence Agreement\n"));
    EXPECT_NE(plain.find("By choosing “Agree” in the installer"), plain.npos);
    EXPECT_NE(plain.find("\n\t•\tinstall the Software"), plain.npos);
    EXPECT_NE(plain.find("\n\td)\tget round the activation"), plain.npos);
    EXPECT_EQ(plain.find_first_of("\\{}"), plain.npos);
    EXPECT_EQ(plain.find("HYPERLINK"), plain.npos);
    EXPECT_EQ(text.links.size(), 3U);
    EXPECT_EQ(text.families, (std::vector<std::string>{"Helvetica", "Menlo"}));
    std::map<Alignment, int> alignments;
    std::map<double, int> indents;
    for (const Paragraph& paragraph : text.paragraphs) {
        ++alignments[text.formats[paragraph.format].alignment];
        ++indents[text.formats[paragraph.format].firstLineIndent];
    }
    EXPECT_EQ(alignments[Alignment::centre], 4);
    EXPECT_GT(alignments[Alignment::justified], 12);
    EXPECT_EQ(indents[-36], 8);
}

} // namespace
} // namespace corvellane::rtf
