#include "agreement/Document.h"
#include "tests/FakePlatform.h"
#include "tools/AgreementJson.h"
#include "tools/AgreementReport.h"

#include <gtest/gtest.h>

namespace corvellane {
namespace {

using Lines = std::vector<std::string>;

class DocumentTest : public testing::Test {
protected:
    DocumentTest()
    {
        resources.files = {{"Good.rtf", "/r/Good.rtf"}, {"Plain.rtf", "/r/Plain.rtf"}, {"Open.rtf", "/r/Open.rtf"},
            {"Gone.rtf", "/r/Gone.rtf"}};
        files.contents = {{"/r/Good.rtf", "{\\rtf1 \\u34\\'22\\\\ {\\b a}\tb\\par\\par\\cell c\\line d}"},
            {"/r/Plain.rtf", "Licence"}, {"/r/Open.rtf", "{\\rtf1 {open}"}};
    }

    FakeFiles files;
    FakeResources resources;
    FakeConsole console;
};

TEST_F(DocumentTest, holdsTheLastResourceThatCouldBeRead)
{
    Document document(resources, files, console);
    EXPECT_TRUE(document.data.get()->text.empty());
    Lines seen;
    const auto subscription
        = document.objectWillChange.subscribe([&] { seen.push_back(agreementPlainText(*document.data.get())); });
    document.load("Good");
    EXPECT_EQ(console.lines, Lines{});
    for (const char* const name : {"None", "Gone", "Plain", "Open"}) {
        document.load(name);
    }
    EXPECT_EQ(seen, Lines{""});
    EXPECT_EQ(agreementPlainText(*document.data.get()), "\"\\ a\tb\n\n\nc\u2028d\n");
    EXPECT_EQ(console.lines,
        (Lines{"File not found", "no file /r/Gone.rtf", "The file “Plain.rtf” couldn’t be opened.",
            "The file “Open.rtf” couldn’t be opened because it isn’t in the correct format."}));
}

TEST_F(DocumentTest, isReportedAsJsonOrText)
{
    EXPECT_EQ(agreementReport(files, "/r/Good.rtf", AgreementForm::plainText), "\"\\ a\tb\n\n\nc\u2028d\n");
    EXPECT_EQ(agreementReport(files, "/r/Good.rtf", AgreementForm::json),
        agreementJson(readAgreement(files, "/r/Good.rtf").value()));
}

} // namespace
} // namespace corvellane
