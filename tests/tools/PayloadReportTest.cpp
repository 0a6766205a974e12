#include "tools/PayloadReport.h"

#include "platform/posix/PosixFiles.h"
#include "tests/ScratchFolder.h"
#include "tools/LogoColours.h"
#include "tools/PrintableText.h"
#include "tools/ReportForms.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <sys/stat.h>

namespace corvellane {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::ElementsAreArray;

const HostPaths hosts{"/app/", "/video/", "/photo/", "/lr/"};

/// A maker's folder, with an agreement and a logo.
class PayloadReportTest : public testing::Test {
protected:
    PayloadReportTest()
    {
        fs::create_directories(products());
        scratch.write("CorvellaneEULA.rtf", R"({\rtf1 I agree})");
        scratch.write("Logo.svg", "<svg><path d=\"M0 0h9\"/></svg>");
    }

    std::string products() const { return scratch.path() + "/Products"; }

    /// What lies below Products: "file", "folder/", "link > target", "pipe |", and before a space the mode of any.
    void make(const std::string& entry)
    {
        const bool hasMode = entry.size() > 4 && entry[4] == ' ' && entry.find_first_not_of("01234567") == 4;
        const std::string what = hasMode ? entry.substr(5) : entry;
        const auto arrow = what.find(" > ");
        fs::path path = products() + "/" + what.substr(0, std::min(arrow, what.find(" |")));
        if (what.ends_with('/')) {
            fs::create_directories(path);
            path = path.parent_path();
        } else if (fs::create_directories(path.parent_path()); arrow != std::string::npos) {
            fs::create_symlink(what.substr(arrow + 3), path);
        } else if (what.ends_with(" |")) {
            ASSERT_EQ(mkfifo(path.c_str(), 0644), 0);
        } else if (!fs::exists(path)) {
            scratch.write("Products/" + what, what);
        }
        if (hasMode) {
            ASSERT_EQ(chmod(path.c_str(), static_cast<mode_t>(std::stoul(entry, nullptr, 8))), 0);
        }
    }

    PayloadReport report(const RoomAt& room = [](const std::string&) { return std::nullopt; })
    {
        std::vector<std::string> folders;
        for (const auto& entry : fs::directory_iterator(products())) {
            if (entry.is_directory() && !entry.is_symlink()) {
                folders.push_back(entry.path().native());
            }
        }
        return reportPayload(PosixFiles(), products(), ProductSelection(folders), hosts, room);
    }

    /// "code path: text" of each finding, paths from the maker's folder or the products folder on.
    std::vector<std::string> findings()
    {
        std::vector<std::string> lines;
        for (const Finding& finding : report().findings) {
            std::string line = std::string(finding.code.name()) + " " + finding.path + ": " + finding.text;
            for (const std::string& base : {products() + "/", scratch.path() + "/"}) {
                for (auto at = line.find(base); at != std::string::npos; at = line.find(base)) {
                    line.erase(at, base.size());
                }
            }
            lines.push_back(line);
        }
        return lines;
    }

    ScratchFolder scratch;
};

struct Case {
    /// What is made.
    std::vector<std::string> entries;
    /// How each finding begins.
    std::vector<std::string> found;
};

const std::vector<std::string> ofGeneration4{"Lightroom 1/Lightroom/Corvellane Velvetgrain 4/Soft",
    "Lightroom 1/Lightroom/velvetgrain4.lrdevplugin/Info.lua", "Lightroom 1/Lightroom/Velvetgrain4.app/x"};

const std::vector<Case> cases{
    // One element comes after another.
    {{"A/X.plugin/x", "B/X.plugin/y"},
        {"overwritten B/X.plugin: is installed over what “A/X.plugin” has installed: “/app/X.plugin” and 1 more"}},
    {{"A/X.plugin/x", "B Tessellane/X.plugin/y"},
        {"overwritten B Tessellane/X.plugin: is installed over what “A/X.plugin” has installed: “/app/X.plugin”",
            "kind-by-folder B Tessellane/X.plugin: is a video element only by the name of a folder above it",
            "assumed /video/: is not created by the script"}},
    {{"A Tessellane/Velvetgrain.plugin/x", "B/Velvetgrain Tessellane.plugin/x"},
        {"removed A Tessellane/Velvetgrain.plugin: loses “/video/Velvetgrain.plugin” again when "
         "“B/Velvetgrain Tessellane.plugin” is installed, which supersedes it",
            "kind-by-folder A Tessellane/Velvetgrain.plugin"}},
    {{"A Tessellane/Velvetgrain Tessellane.plugin/x", "B Tessellane/Velvetgrain.plugin/x"},
        {"kind-by-folder B Tessellane/Velvetgrain.plugin"}},
    {{"A/Lightroom a/Corvellane Velvetgrain 4/Soft", "A/Lightroom a/velvetgrain4.lrdevplugin/Info.lua",
         "A/Lightroom a/Velvetgrain4.app/x", "A/Lightroom b/Corvellane Velvetgrain 4/Soft",
         "A/Lightroom b/velvetgrain4.lrdevplugin/Info.lua", "A/Lightroom b/Velvetgrain4.app/x"},
        {"overwritten A/Lightroom b: is installed over what “A/Lightroom a” has installed: "
         "“/lr/Export Presets/Corvellane Velvetgrain 4/Soft” and 2 more"}},
    {{"A/X.plugin/x", "B/x.plugin/x"}, {"capitals B/x.plugin: differs from “X.plugin” in capitals"}},
    {{"A/X.plugin/a", "A/X.plugin/A", "A/X.plugin/Caf\u00e9", "A/X.plugin/Cafe\u0301"},
        {"capitals A/X.plugin/Caf\u00e9", "capitals A/X.plugin/a"}},
    // Something is not there.
    {{"A/Lightroom/velvetgrain4.lrdevplugin/Info.lua", "A/Lightroom/Velvetgrain4.app"},
        {"missing A/Lightroom: lacks the folder “Corvellane Velvetgrain 4”, which the script needs",
            "missing A/Lightroom: lacks the folder “Velvetgrain4.app”, which the script needs"}},
    {{"A/Lightroom/Corvellane Velvetgrain 4/Soft", "A/Lightroom/Velvetgrain4.app/x"},
        {"missing A/Lightroom: lacks the folder “velvetgrain4.lrdevplugin”, which the script needs"}},
    {{"A/X.plugin/out > ../../A", "A/X.plugin/in/root > /usr", "A/X.plugin/in/gone > ../gone", "A/X.plugin/in/up > ..",
         "A/X.plugin/in/round > round"},
        {"empty-element A/X.plugin", "link-broken A/X.plugin/in/gone: is a link to nothing: “../gone”",
            "link-broken A/X.plugin/in/round",
            "link-outside A/X.plugin/in/root: is a link that leaves its element: “/usr”",
            "link-outside A/X.plugin/out: is a link that leaves its element: “../../A”"}},
    {{"A/X.plugin/"}, {"empty-element A/X.plugin: holds no file"}},
    {{"A/file.plugin", "loose.txt"},
        {"empty-product A: holds no folder and installs nothing", "ignored A/file.plugin",
            "ignored loose.txt: is no folder and will be ignored"}},
    {{"A/X.plugin/x", "A/Y.plugin > X.plugin"}, {"ignored-link A/Y.plugin: is a link and will be ignored"}},
    {{}, {"no-products Products: holds no product, and the wizard stops at “No products found”"}},
    // Somebody cannot read or copy it.
    {{"A/X.plugin/x", "A/X.plugin/pipe |"},
        {"special-file A/X.plugin/pipe: is neither a file nor a folder nor a link"}},
    {{"A/X.plugin/x", "0700 A/X.plugin/"}, {"closed A/X.plugin: cannot be read by everybody"}},
    {{"0600 A/X.plugin/x", "0600 A/X.plugin/y", "0750 A/"},
        {"closed A: cannot", "closed A/X.plugin/x", "closed A/X.plugin/y"}},
    {{"0600 A/X.plugin/in/x", "0701 A/X.plugin/in/"}, {"closed A/X.plugin/in: "}},
    {{"4755 A/X.plugin/x", "0666 A/X.plugin/y"},
        {"set-id A/X.plugin/x: has a set-user-ID", "open A/X.plugin/y: can be written by everybody"}},
    // Names say something else than is meant.
    {{"A/X Lightroom tessellane/x", "lightroom/Y/x"},
        {"missing A/X Lightroom", "missing A/X Lightroom", "missing A/X Lightroom",
            "kind-capitals lightroom/Y: is a photo element: only “Lightroom”, with these capitals"}},
    {{"A/tessellane.plugin/x", "A/Tessellane 12.plugin/x"},
        {"superseding A/Tessellane 12.plugin", "kind-capitals A/tessellane.plugin", "assumed /photo/"}},
    {{".git/hooks/x", ".hidden/.Y.plugin/x", "A/X.plugin/.DS_Store", "A/X.plugin/x"},
        {"leftover .git: is left from a tool", "hidden .hidden: is hidden, and taken for a product",
            "hidden .hidden/.Y.plugin: is hidden, and taken for an element",
            "leftover A/X.plugin/.DS_Store: is left from a tool"}},
    {{"A $/X.plugin/x"}, {"escaped A $: has a name with characters that the script has to escape"}},
};

TEST_F(PayloadReportTest, findsWhatWillNotGoAsItsMakerMeansIt)
{
    for (const Case& each : cases) {
        fs::remove_all(products());
        fs::create_directories(products());
        std::ranges::for_each(each.entries, [&](const auto& entry) { make(entry); });
        std::vector<testing::Matcher<std::string>> expected;
        std::ranges::copy(
            each.found | std::views::transform(&testing::StartsWith<std::string>), std::back_inserter(expected));
        EXPECT_THAT(findings(), testing::UnorderedElementsAreArray(expected))
            << (each.entries.empty() ? "nothing" : each.entries.front());
    }
}

TEST_F(PayloadReportTest, findsTextsThatTheScriptWritesOverOrCannotWrite)
{
    std::ranges::for_each(ofGeneration4, [&](const auto& entry) { make(entry); });
    EXPECT_THAT(findings(), ElementsAre());
    const std::string path = "Lightroom 1/Lightroom/velvetgrain4.lrdevplugin/Path.txt";
    make(path);
    EXPECT_THAT(findings(), ElementsAre("rewritten " + path + ": is written anew by the installation"));
    fs::remove(products() + "/" + path);
    make(path + "/x");
    EXPECT_THAT(findings(),
        ElementsAre(testing::StartsWith("blocked Lightroom 1/Lightroom: has something else at "
                                        "“velvetgrain4.lrdevplugin/Path.txt”")));
}

TEST_F(PayloadReportTest, findsAnAgreementAndPicturesThatAreNotToBeShown)
{
    make("A/X.plugin/x");
    scratch.write("Logo.svg", R"(<svg><path fill="#fff"/><g fill="red"><path d=""/></g></svg>)");
    EXPECT_THAT(findings(),
        ElementsAre(testing::StartsWith("logo-colours Logo.svg: has more than one colour, #ffffff and red")));
    fs::remove(scratch.path() + "/Logo.svg");
    const std::string png("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\0\xb4\0\0\0\x28\x08", 25);
    for (const auto& [logo, found] :
        std::vector<std::pair<std::string, std::string>>{{png + "\6", ""}, {png + "\3tRNSIDAT", ""},
            {png + "\2IDATtRNS", "logo-colours Logo.png: has no transparent parts and is drawn in black all over"},
            {"GIF89a", "logo Logo.png: is no logo to show: it is not a picture in PNG"}}) {
        scratch.write("Logo.png", logo);
        EXPECT_EQ(findings(), found.empty() ? std::vector<std::string>() : std::vector{found});
    }
    fs::remove(scratch.path() + "/Logo.png");
    scratch.write("CorvellaneEULA.rtf", "no rich text");
    scratch.write("Icon.svg", png);
    EXPECT_THAT(findings(),
        ElementsAre(testing::StartsWith("agreement CorvellaneEULA.rtf: is no agreement to show"),
            "icon Icon.svg: is no icon to show: it is not a picture in SVG",
            testing::StartsWith("logo Logo.svg: is no logo to show")));
}

TEST_F(PayloadReportTest, findsWhatDoesNotFit)
{
    make("A/X.plugin/a file of twenty");
    const auto free = [](std::uintmax_t bytes) { return [bytes](const std::string&) { return std::optional(bytes); }; };
    EXPECT_THAT(report(free(27)).findings, ElementsAre());
    EXPECT_THAT(report(free(20)).findings,
        ElementsAre(testing::Field(
            &Finding::text, "has too little room on this machine: 27 bytes are needed, and 20 bytes are free")));
}

TEST_F(PayloadReportTest, isShownToPeopleAndPrograms)
{
    make("V/Tessellane 2.plugin/x");
    make("W/\xFF.plugin/");
    const auto lines = reportLines(report(), true);
    EXPECT_THAT(lines,
        ElementsAre("V", "  Tessellane 2.plugin", "    kind: video", "    target folder: /video/",
            "    supersedes: Glintmotion2.plugin, Velvetgrain2.plugin", "    size: 23 bytes in 1 file", "W",
            "  \\xFF.plugin", "    kind: photo", "    target folder: /photo/", "    size: 0 bytes in 0 files",
            "\x1b[1;31merror\x1b[0m: " + products() + "/W/\\xFF.plugin: holds no file [empty-element]",
            testing::StartsWith("\x1b[1;36mnote\x1b[0m: /photo/: is not created"), "1 error, 0 warnings, 1 note"));
    const auto json = nlohmann::json::parse(reportJson(report()));
    EXPECT_EQ(json["errors"], 1);
    EXPECT_EQ(json["products"][0]["elements"][0]["supersedes"][0], "Glintmotion2.plugin");
    EXPECT_EQ(json["findings"][0]["code"], "empty-element");
    EXPECT_EQ(json["findings"][0]["path"], products() + "/W/\\xFF.plugin");
    EXPECT_TRUE(isRefused(report(), false));
    fs::remove_all(products() + "/W");
    make("0600 V/Tessellane 2.plugin/x");
    EXPECT_FALSE(isRefused(report(), false));
    EXPECT_TRUE(isRefused(report(), true));
}

TEST(LogoColours, areThoseThatAreDrawn)
{
    EXPECT_THAT(
        coloursOf(R"(<svg><path fill="none" stroke="#000"/><circle r="1"/><g fill='#000000'><rect/></g></svg>)"),
        ElementsAre("#000000"));
    EXPECT_THAT(coloursOf(R"(<svg><!-- <a fill="red"> --><style>.a { fill: Blue; }</style><rect class="a"/></svg>)"),
        ElementsAre("blue"));
    EXPECT_THAT(
        coloursOf(R"svg(<svg><path/><rect style="fill:#FFF;stroke:none"/><stop stop-color="rgb(1,2,3)"/></svg>)svg"),
        ElementsAre("#000000", "#ffffff", "rgb(1,2,3)"));
    EXPECT_THAT(
        coloursOf(R"(<svg><image href="x.png"/><text fill-opacity=".5">fill</text)"), ElementsAre("#000000", "image"));
}

TEST(PrintableText, isOneLineOfUtf8)
{
    EXPECT_EQ(printable("é a\nb\\\x01\xFF\xC3"), "é a\\nb\\\\\\x01\\xFF\\xC3");
    EXPECT_EQ(printable("\xC2\x85 \xE2\x80\xA8"), "\\xC2\\x85 \xE2\x80\xA8");
}

} // namespace
} // namespace corvellane
