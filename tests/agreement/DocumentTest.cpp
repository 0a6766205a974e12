#include "agreement/Document.h"
#include "platform/posix/PosixFiles.h"
#include "rtf/Reader.h"
#include "tests/FakePlatform.h"
#include "tests/ScratchFolder.h"
#include "tools/AgreementReport.h"

#include <sys/stat.h>
#include <unistd.h>

namespace corvellane {
namespace {

class DocumentTest : public testing::Test {
protected:
    /// The path that the resource has from now on.
    std::string place(const std::string& name) { return resources.files[name] = scratch.path() + "/" + name; }

    std::string write(const std::string& name, const std::string& bytes)
    {
        scratch.write(name, bytes);
        return place(name);
    }

    /// What loading the resource prints, if it leaves the data empty and announces nothing.
    std::vector<std::string> linesOfFailure(const std::string& name)
    {
        Document document(resources, files, console);
        int writes = 0;
        const auto subscription = document.objectWillChange.subscribe([&] { ++writes; });
        console.lines.clear();
        document.load(name);
        EXPECT_EQ(writes, 0);
        EXPECT_TRUE(document.data.get()->paragraphs.empty());
        return console.lines;
    }

    ScratchFolder scratch;
    PosixFiles files;
    FakeResources resources;
    FakeConsole console;
};

using Lines = std::vector<std::string>;

TEST_F(DocumentTest, holdsTheResourceAfterOneAnnouncement)
{
    write("Terms.rtf", "{\\rtf1\\ansi Read {\\b this}\\par}");
    write("Terms.txt", "not this");
    Document document(resources, files, console);
    Lines seen;
    const auto subscription
        = document.objectWillChange.subscribe([&] { seen.push_back(agreementPlainText(*document.data.get())); });
    EXPECT_TRUE(document.data.get()->paragraphs.empty());
    document.load("Terms");
    EXPECT_EQ(seen, Lines{""});
    EXPECT_EQ(agreementPlainText(*document.data.get()), "Read this\n");
    EXPECT_EQ(console.lines, Lines{});
}

TEST_F(DocumentTest, printsOneLineWhenItCannotBeRead)
{
    EXPECT_EQ(linesOfFailure("Terms"), Lines{"File not found"});
    write("Plain.rtf", "Licence");
    EXPECT_EQ(linesOfFailure("Plain"), Lines{"The file “Plain.rtf” couldn’t be opened."});
    write("Empty.rtf", "");
    EXPECT_EQ(linesOfFailure("Empty"), Lines{"The file “Empty.rtf” couldn’t be opened."});
    write("CorvellaneEULA.rtf", "{\\rtf1 {open}");
    EXPECT_EQ(linesOfFailure("CorvellaneEULA"),
        Lines{"The file “CorvellaneEULA.rtf” couldn’t be opened because it isn’t in the correct format."});
    std::filesystem::create_directory(place("Folder.rtf"));
    EXPECT_EQ(linesOfFailure("Folder"), Lines{"The file “Folder.rtf” couldn’t be opened."});
    ASSERT_EQ(mkfifo(place("Pipe.rtf").c_str(), 0600), 0);
    EXPECT_EQ(linesOfFailure("Pipe"), Lines{"The file “Pipe.rtf” couldn’t be opened."});
}

TEST_F(DocumentTest, saysThatPermissionIsMissing)
{
    std::filesystem::permissions(write("Terms.rtf", "{\\rtf1 a}"), std::filesystem::perms::none);
    std::filesystem::permissions(scratch.path(), std::filesystem::perms::all);
    // Root may read everything: for the moment of the test the process is somebody else.
    const bool isRoot = geteuid() == 0;
    EXPECT_TRUE(!isRoot || seteuid(65534) == 0);
    EXPECT_EQ(linesOfFailure("Terms"),
        Lines{"The file “Terms.rtf” couldn’t be opened because you don’t have permission to view it."});
    EXPECT_TRUE(!isRoot || seteuid(0) == 0);
}

TEST_F(DocumentTest, forgivesWhatStandsAroundTheOuterGroup)
{
    for (const std::string& before : Lines{"", " \r\n\t", "\xEF\xBB\xBF", "\xEF\xBB\xBF\n", " \xEF\xBB\xBF "}) {
        for (const std::string& after : Lines{"", "\n", "}", "{\\b", std::string(3, '\0')}) {
            write("Terms.rtf", std::string(before).append("{\\rtf1 a}").append(after));
            Document document(resources, files, console);
            document.load("Terms");
            EXPECT_EQ(agreementPlainText(*document.data.get()), "a\n") << before << after;
        }
    }
    for (const std::string_view wrong : {"\\rtf1 a", "{rtf1 a}", "{ \\rtf1 a}", "{\\rt", "x{\\rtf1 a}"}) {
        EXPECT_EQ(rtf::read(wrong).error(), rtf::ReadFailure::notRtf) << wrong;
    }
    for (const std::string_view open : {"{\\rtf", "{\\rtf1 a\\", "{\\rtf1 a\\'", "{\\rtf1\\bin5 }}", "{\\rtf1 a\\}"}) {
        EXPECT_EQ(rtf::read(open).error(), rtf::ReadFailure::incomplete) << open;
    }
}

TEST_F(DocumentTest, isReportedAsJsonOrTextOrByItsProblem)
{
    const std::string good = write("Good.rtf", "{\\rtf1 \\u34\\'22\\\\ a\tb\\par\\par\\cell c\\line d}");
    EXPECT_EQ(reportAgreement(files, good, AgreementForm::plainText, console), 0);
    EXPECT_EQ(reportAgreement(files, good, AgreementForm::json, console), 0);
    EXPECT_EQ(agreementProblem(files, good), std::nullopt);
    const std::string bad = write("Bad.rtf", "{\\rtf1");
    EXPECT_EQ(reportAgreement(files, bad, AgreementForm::json, console), 1);
    EXPECT_EQ(agreementProblem(files, bad), console.lines.back());
    EXPECT_EQ(
        agreementProblem(files, bad + "x"), "The file “Bad.rtfx” couldn’t be opened because there is no such file.");
    const std::string json = R"({"paragraphs": [
    {"runs": [
      {"text": "\"\\ a\tb", "font": "Helvetica", "size": 12}
    ]},
    {"end": {"font": "Helvetica", "size": 12}, "runs": []},
    {"runs": [
      {"text": "\tc d", "font": "Helvetica", "size": 12}
    ]}
]})";
    EXPECT_EQ(console.lines,
        (Lines{"\"\\ a\tb\n\n\tc\u2028d", json,
            "The file “Bad.rtf” couldn’t be opened because it isn’t in the correct format."}));
}

} // namespace
} // namespace corvellane
