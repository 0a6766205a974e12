#include "agreement/Document.h"
#include "agreement/RtfReader.h"
#include "platform/Console.h"
#include "platform/Resources.h"
#include "tools/AgreementReport.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

// NOLINTBEGIN(modernize-raw-string-literal): the rows of a table are written alike, whatever is in them.

namespace corvellane {
namespace {

class RecordingConsole : public Console {
public:
    void print(std::string_view text) override { lines.emplace_back(text); }

    std::vector<std::string> lines;
};

/// A resource folder that is emptied when the test ends.
class FolderResources : public Resources {
public:
    FolderResources()
    {
        std::string name = (std::filesystem::temp_directory_path() / "agreement-XXXXXX").string();
        folder_ = mkdtemp(name.data());
    }

    ~FolderResources() override { std::filesystem::remove_all(folder_); }
    FolderResources(const FolderResources&) = delete;
    FolderResources& operator=(const FolderResources&) = delete;
    FolderResources(FolderResources&&) = delete;
    FolderResources& operator=(FolderResources&&) = delete;

    std::optional<std::string> folder(const std::string& name) const override { return (folder_ / name).string(); }

    std::optional<std::string> file(const std::string& baseName, const std::string& extension) const override
    {
        const auto path = folder_ / (baseName + "." + extension);
        return std::filesystem::exists(path) ? std::optional(path.string()) : std::nullopt;
    }

    std::string write(const std::string& name, std::string_view bytes) const
    {
        std::ofstream(folder_ / name, std::ios::binary) << bytes;
        return (folder_ / name).string();
    }

private:
    std::filesystem::path folder_;
};

/// The files that nobody may read can be read by root: for as long as this lives the process is somebody else.
class WithoutPrivileges {
public:
    WithoutPrivileges()
    {
        if (isRoot_ && seteuid(65534) != 0) {
            ADD_FAILURE() << "cannot put the privileges off";
        }
    }

    ~WithoutPrivileges()
    {
        if (isRoot_ && seteuid(0) != 0) {
            ADD_FAILURE() << "cannot take the privileges back";
        }
    }

    WithoutPrivileges(const WithoutPrivileges&) = delete;
    WithoutPrivileges& operator=(const WithoutPrivileges&) = delete;
    WithoutPrivileges(WithoutPrivileges&&) = delete;
    WithoutPrivileges& operator=(WithoutPrivileges&&) = delete;

private:
    const bool isRoot_ = geteuid() == 0;
};

class DocumentTest : public testing::Test {
protected:
    /// What loading the resource prints, if it leaves the data empty and announces nothing.
    std::vector<std::string> linesOfFailure(const std::string& name)
    {
        Document document(resources, console);
        int writes = 0;
        const auto subscription = document.objectWillChange.subscribe([&] { ++writes; });
        console.lines.clear();
        document.load(name);
        EXPECT_EQ(writes, 0);
        EXPECT_TRUE(document.data.get().paragraphs.empty());
        return console.lines;
    }

    FolderResources resources;
    RecordingConsole console;
};

using Lines = std::vector<std::string>;

TEST_F(DocumentTest, holdsTheResourceAfterOneAnnouncement)
{
    resources.write("Terms.rtf", "{\\rtf1\\ansi Read {\\b this}\\par}");
    resources.write("Terms.txt", "not this");
    Document document(resources, console);
    Lines seen;
    const auto subscription
        = document.objectWillChange.subscribe([&] { seen.push_back(agreementPlainText(document.data.get())); });
    EXPECT_TRUE(document.data.get().paragraphs.empty());
    document.load("Terms");
    EXPECT_EQ(seen, Lines{""});
    EXPECT_EQ(agreementPlainText(document.data.get()), "Read this\n");
    EXPECT_EQ(console.lines, Lines{});
}

TEST_F(DocumentTest, printsOneLineWhenItCannotBeRead)
{
    EXPECT_EQ(linesOfFailure("Terms"), Lines{"File not found"});
    resources.write("Plain.rtf", "Licence");
    EXPECT_EQ(linesOfFailure("Plain"), Lines{"The file “Plain.rtf” couldn’t be opened."});
    resources.write("Empty.rtf", "");
    EXPECT_EQ(linesOfFailure("Empty"), Lines{"The file “Empty.rtf” couldn’t be opened."});
    resources.write("CorvellaneEULA.rtf", "{\\rtf1 {open}");
    EXPECT_EQ(linesOfFailure("CorvellaneEULA"),
        Lines{"The file “CorvellaneEULA.rtf” couldn’t be opened because it isn’t in the correct format."});
    std::filesystem::create_directory(*resources.folder("Folder.rtf"));
    EXPECT_EQ(linesOfFailure("Folder"), Lines{"The file “Folder.rtf” couldn’t be opened."});
    ASSERT_EQ(mkfifo(resources.folder("Pipe.rtf")->c_str(), 0600), 0);
    EXPECT_EQ(linesOfFailure("Pipe"), Lines{"The file “Pipe.rtf” couldn’t be opened."});
}

TEST_F(DocumentTest, saysThatPermissionIsMissing)
{
    const std::string path = resources.write("Terms.rtf", "{\\rtf1 a}");
    std::filesystem::permissions(*resources.folder("."), std::filesystem::perms::all);
    std::filesystem::permissions(path, std::filesystem::perms::none);
    const WithoutPrivileges scope;
    EXPECT_EQ(linesOfFailure("Terms"),
        Lines{"The file “Terms.rtf” couldn’t be opened because you don’t have permission to view it."});
}

TEST_F(DocumentTest, forgivesWhatStandsAroundTheOuterGroup)
{
    for (const std::string& before : Lines{"", " \r\n\t", "\xEF\xBB\xBF", "\xEF\xBB\xBF\n", " \xEF\xBB\xBF "}) {
        for (const std::string& after : Lines{"", "\n", "}", "{\\b", std::string(3, '\0')}) {
            resources.write("Terms.rtf", std::string(before).append("{\\rtf1 a}").append(after));
            Document document(resources, console);
            document.load("Terms");
            EXPECT_EQ(agreementPlainText(document.data.get()), "a\n") << before << after;
        }
    }
    for (const std::string_view wrong : {"\\rtf1 a", "{rtf1 a}", "{ \\rtf1 a}", "{\\rt", "x{\\rtf1 a}"}) {
        EXPECT_EQ(std::get<RtfFailure>(readRtf(wrong)), RtfFailure::notRtf) << wrong;
    }
    for (const std::string_view open : {"{\\rtf", "{\\rtf1 a\\", "{\\rtf1 a\\'", "{\\rtf1\\bin5 }}", "{\\rtf1 a\\}"}) {
        EXPECT_EQ(std::get<RtfFailure>(readRtf(open)), RtfFailure::incomplete) << open;
    }
}

TEST_F(DocumentTest, isReportedAsJsonOrTextOrByItsProblem)
{
    const std::string good = resources.write("Good.rtf", "{\\rtf1 \\u34\\'22\\\\ a\tb\\par\\par\\cell c\\line d}");
    EXPECT_EQ(reportAgreement(good, AgreementForm::plainText, console), 0);
    EXPECT_EQ(reportAgreement(good, AgreementForm::json, console), 0);
    EXPECT_EQ(agreementProblem(good), std::nullopt);
    const std::string bad = resources.write("Bad.rtf", "{\\rtf1");
    EXPECT_EQ(reportAgreement(bad, AgreementForm::json, console), 1);
    EXPECT_EQ(agreementProblem(bad), console.lines.back());
    EXPECT_EQ(agreementProblem(bad + "x"), "The file “Bad.rtfx” couldn’t be opened because there is no such file.");
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

// NOLINTEND(modernize-raw-string-literal)
