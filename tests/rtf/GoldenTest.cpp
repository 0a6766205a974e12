#include "rtf/Reader.h"
#include "tests/ScratchFolder.h"
#include "tools/AgreementJson.h"
#include "tools/AgreementReport.h"

namespace corvellane::rtf {
namespace {

/// Every data/NAME.rtf is read as the NAME.json beside it says, or where its words are all that matters, NAME.txt.
TEST(RtfGolden, readsEveryFileAsWritten)
{
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(AGREEMENT_DATA)) {
        std::filesystem::path path = entry.path();
        if (path.extension() == ".rtf") {
            const auto text = read(readFile(path.string()));
            ASSERT_TRUE(text) << path;
            const bool hasLooks = exists(path.replace_extension(".json"));
            const std::string expected = readFile(hasLooks ? path : path.replace_extension(".txt"));
            EXPECT_EQ(hasLooks ? agreementJson(*text) : agreementPlainText(*text), expected) << path;
            ++files;
        }
    }
    EXPECT_EQ(files, 22);
}

TEST(SampleAgreement, isReadWithEverythingItsAuthorPutIn)
{
    const AttributedText text = read(readFile(SAMPLE_AGREEMENT)).value();
    const std::string plain = agreementPlainText(text);
    EXPECT_TRUE(plain.starts_with("Corvellane Software Licence Agreement\n"));
    EXPECT_NE(plain.find("By choosing “Agree” in the installer"), plain.npos);
    EXPECT_NE(plain.find("\n\td)\tget round the activation"), plain.npos);
    EXPECT_EQ(plain.find_first_of("\\{}"), plain.npos);
    EXPECT_EQ(plain.find("HYPERLINK"), plain.npos);
    EXPECT_EQ(text.links.size(), 3U);
}

} // namespace
} // namespace corvellane::rtf
