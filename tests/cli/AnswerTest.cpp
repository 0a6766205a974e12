#include "cli/Answer.h"
#include "cli/Advice.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace corvellane {
namespace {

using Json = nlohmann::json;

const std::string video = "/Products/Tessellane Studio/Cut\n\xff.plugin";

/// What docs/cli.md promises to programs.
TEST(Answer, isTheObjectThatIsDocumented)
{
    const Answer verified{.command = "verify",
        .status = Status::failed,
        .message = "Not everything\nis as shipped.",
        .users = {"anna", "1001"},
        .elements = {{video, "differs", {{"/a\t\xfe", "is missing"}, {"/b", "has other contents"}}},
            {"/Products/For Lightroom/One", "as shipped"}, {"/Products/Photo/One", "missing"}}};
    EXPECT_EQ(Json::parse(answerJson(verified)), Json::parse(R"({"format": 1, "command": "verify", "status": 1,
        "message": "Not everything\\nis as shipped.", "users": ["anna", "1001"], "kept": [], "elements": [
        {"product": "Tessellane Studio", "name": "Cut\\n\\xFF.plugin", "kind": "video", "state": "differs", "differences":
            [{"path": "/a\\t\\xFE", "text": "is missing"}, {"path": "/b", "text": "has other contents"}]},
        {"product": "For Lightroom", "name": "One", "kind": "Lightroom", "state": "as shipped", "differences": []},
        {"product": "Photo", "name": "One", "kind": "photo", "state": "missing", "differences": []}]})"));
    const Answer removed{.command = "remove", .changed = true, .users = {"anna"}, .kept = {{"/c", "is a folder"}}};
    EXPECT_EQ(Json::parse(answerJson(removed)), Json::parse(R"({"format": 1, "command": "remove", "status": 0,
        "changed": true, "users": ["anna"], "elements": [], "kept": [{"path": "/c", "text": "is a folder"}]})"));
    const Answer listed{.command = "list", .elements = {{video, ""}}};
    EXPECT_EQ(Json::parse(answerJson(listed)), Json::parse(R"({"format": 1, "command": "list", "status": 0, "users": [],
        "kept": [], "elements": [{"product": "Tessellane Studio", "name": "Cut\\n\\xFF.plugin", "kind": "video"}]})"));
    EXPECT_EQ(answerJson(listed).find("\n}\n"), std::string::npos) << "the console ends the line";
}

TEST(Answer, isALineAnElement)
{
    const std::string name = "Tessellane Studio/Cut\\n\\xFF.plugin: ";
    const Answer answer{.command = "verify",
        .elements = {{video, ""}, {video, "as shipped"}, {video, "differs", {{"/a\n", "is missing"}}},
            {video, "differs", {{"/a", "is missing"}, {"/b", "x"}, {"/c", "x"}}}},
        .kept = {{"/d\\", "is a folder"}}};
    EXPECT_THAT(answerLines(answer),
        testing::ElementsAre(name + "video", name + "as shipped", name + "differs: /a\\n is missing",
            name + "differs: /a is missing, and 2 more", "kept: /d\\\\ is a folder"));
}

TEST(Advice, saysInOneLineWhatToDo)
{
    const std::vector<std::pair<std::string, std::string>> rows{
        {"cp: error writing '/A/x': No space left on device\ncp: error writing '/A/y': No space left on device",
            "cp: error writing '/A/x': No space left on device; cp: error writing '/A/y': No space left on device. "
            "Make "
            "room there, and run this again."},
        {"There is not enough room for “/A/”: 2.0 MB are needed, and 1.0 MB are free.",
            "There is not enough room for “/A/”: 2.0 MB are needed, and 1.0 MB are free. Make room there, and run this "
            "again."},
        {"mkdir: cannot create directory '/A/': Not a directory",
            "mkdir: cannot create directory '/A/': Not a directory. Move away the file that stands where a folder must "
            "be, and run this again."},
        {"It fell.", "It fell. See to that, and run this again."},
        {"“/x” is a pipe. Remove it and install again.", "“/x” is a pipe. Remove it and install again."},
    };
    for (const auto& [words, line] : rows) {
        EXPECT_EQ(withAdvice(words), line);
    }
}

} // namespace
} // namespace corvellane
