#include "helper/InstallFolders.h"

#include <gmock/gmock.h>

namespace corvellane::runner {
namespace {

/// "FORM|FIRST|SECOND" with the arguments as they are meant.
std::string parsed(std::string_view text)
{
    struct Printed {
        std::string operator()(const MakeFolder& command) const { return "folder|" + command.path; }
        std::string operator()(const Copy& command) const { return "copy|" + command.source + "|" + command.folder; }
        std::string operator()(const Remove& command) const { return "remove|" + command.path; }
        std::string operator()(const Link& command) const { return "link|" + command.target + "|" + command.link; }
        std::string operator()(const WriteText& command) const { return "text|" + command.text + "|" + command.path; }
        std::string operator()(const HandOver& command) const { return "hand over|" + command.path; }
        std::string operator()(const Unlink& command) const { return "unlink|" + command.link + "|" + command.target; }
        std::string operator()(const RemoveFolders& command) const { return "folders|" + command.path; }
    };
    const auto command = parseCommand(text);
    return command ? std::visit(Printed(), *command) : "refused";
}

TEST(InstallCommand, isOneOfEightForms)
{
    EXPECT_EQ(parsed(R"(mkdir -p "/a b/")"), "folder|/a b/");
    EXPECT_EQ(parsed(R"(cp -R -f "/a" "/b/")"), "copy|/a|/b/");
    EXPECT_EQ(parsed(R"(rm -R -f "/a")"), "remove|/a");
    EXPECT_EQ(parsed(R"(ln -f -h -s "/a" "/b")"), "link|/a|/b");
    EXPECT_EQ(parsed(R"(echo "a" > "/b")"), "text|a\n|/b");
    EXPECT_EQ(parsed(R"(chown -R $USER "/a")"), "hand over|/a");
    EXPECT_EQ(parsed(R"x([ "$(readlink -n "/a b")" != "/c" ] || rm -f "/a b")x"), "unlink|/a b|/c");
    EXPECT_EQ(parsed(R"(rmdir -p "/a/b/")"), "folders|/a/b/");
    EXPECT_EQ(parsed("rm -R -f \"\\\\ \\\" \\$ \\` ' ; & \n \xFF * ~ # ( ) -x\""),
        "remove|\\ \" $ ` ' ; & \n \xFF * ~ # ( ) -x");
}

TEST(InstallCommand, isNothingElse)
{
    for (const char* const text :
        {"", "id", "mkdir", "mkdir -p ", R"(mkdir -p "/a)", R"(mkdir -p /a)", R"( mkdir -p "/a")", R"(mkdir -p "/a" )",
            R"(mkdir -p "/a"; id)", R"(mkdir -p "/a" "/b")", R"(mkdir -p "/a"&)", R"(mkdir  -p "/a")",
            R"(mkdir -m 777 "/a")", R"(cp -R "/a" "/b")", R"(cp -R -f "/a"  "/b")", R"(cp -R -f "/a")", "rm -R -f '/a'",
            R"x(rm -R -f "$(id)")x", "rm -R -f \"`id`\"", R"(rm -R -f "$HOME")", R"(rm -R -f "\a")", R"(rm -R -f "\)",
            R"(echo "a" >> "/b")", R"(echo "a">"/b")", R"(echo "a" > /b)", R"x(echo "$(id)" > "/b")x", R"(echo "a")",
            R"(chown -R root "/a")", R"(chown -R "$USER" "/a")", R"(ln -s "/a" "/b")", "true\nmkdir -p \"/a\"",
            R"(rmdir "/a")", R"(rm -f "/a")", R"x([ "$(readlink -n "/a")" != "/c" ] || rm -f "/b")x",
            R"x([ "$(readlink -n "/a")" != "/c" ] || rm -R -f "/a")x",
            R"x([ "$(readlink -n "/a")" = "/c" ] || rm -f "/a")x",
            R"x([ "$(readlink -n "/a"; id)" != "/c" ] || rm -f "/a")x"}) {
        EXPECT_EQ(parsed(text), "refused") << text;
    }
}

/// As `printf '%b\n'` of the shell on Debian writes it.
TEST(InstallCommand, interpretsBackslashesOfATextAsXsiDoes)
{
    EXPECT_EQ(parsed(R"(echo "a\\\\b\\tc\\n\\0101\\18\\q\\" > "/b")"), "text|a\\b\tc\nA\0018\\q\\\n|/b");
    EXPECT_EQ(parsed(R"(echo "a\\cb" > "/b")"), "text|a|/b");
    EXPECT_EQ(parsed(R"(echo "\\08\\00101" > "/b")"), std::string("text|\0008\b1\n|/b", 13));
    EXPECT_EQ(parsed(R"(echo "" > "/b")"), "text|\n|/b");
}

TEST(InstallFolders, holdAllThatIsReadAndWritten)
{
    const InstallFolders folders = installFolders("", "/home/user", "/opt/Products");
    const std::string link = "/Library/Application Support/Adobe/Plug-Ins/CC/Corvellane/";
    const std::string lightroom = "/home/user/Library/Application Support/Adobe/Lightroom/";
    const std::string application = "/Applications/Corvellane/";
    const auto isAllowed = [&](const std::string& text) { return readCommand(text, folders).command.has_value(); };
    const auto quoted = [](const std::string& path) { return " \"" + path + "\""; };
    for (const std::string& folder : {application, link, folders.video, lightroom}) {
        EXPECT_TRUE(isAllowed("mkdir -p" + quoted(folder)));
        EXPECT_TRUE(isAllowed("rm -R -f" + quoted(folder + "a/b/")));
        EXPECT_TRUE(isAllowed("ln -f -h -s" + quoted(application + "a") + quoted(folder)));
        EXPECT_EQ(isAllowed("chown -R $USER" + quoted(folder + "a")), folder == lightroom);
        for (const char* const outside : {"", "/", ".", "..", "../a", "a/../b", "a//b", "./a", "a/."}) {
            EXPECT_FALSE(isAllowed("rm -R -f" + quoted(folder + outside))) << folder << outside;
        }
    }
    for (const char* const outside :
        {"", "/", "/etc/passwd", "Applications/Corvellane/a", "/Applications/Corvellane2/a", "/Applications",
            "/home/user/a", "/opt/Products/a", "/Library/Application Support/Adobe/Lightroom/a"}) {
        EXPECT_FALSE(isAllowed("mkdir -p" + quoted(outside))) << outside;
        EXPECT_FALSE(isAllowed("echo \"a\" >" + quoted(outside))) << outside;
        EXPECT_FALSE(isAllowed("cp -R -f" + quoted("/opt/Products/a") + quoted(outside))) << outside;
    }
    EXPECT_TRUE(isAllowed("cp -R -f" + quoted("/opt/Products/a/b") + quoted(application)));
    EXPECT_TRUE(isAllowed("cp -R -f" + quoted(application + "a/") + quoted(lightroom + "b/")));
    EXPECT_FALSE(isAllowed("cp -R -f" + quoted("/etc/shadow") + quoted(application)));
    EXPECT_FALSE(isAllowed("ln -f -h -s" + quoted("/etc") + quoted(link)));
    EXPECT_FALSE(readCommand("mkdir -p" + quoted(lightroom), installFolders("", "home", "")).command);
    const auto unlink = [&](const std::string& path, const std::string& target) {
        return isAllowed("[ \"$(readlink -n" + quoted(path) + ")\" !=" + quoted(target) + " ] || rm -f" + quoted(path));
    };
    EXPECT_TRUE(unlink(link + "a", application + "a"));
    EXPECT_TRUE(unlink(lightroom + "Modules/a", application + "a/b"));
    EXPECT_FALSE(unlink(link + "a", "/etc"));
    EXPECT_FALSE(unlink("/etc/a", application + "a"));
    EXPECT_FALSE(unlink(link, application + "a"));
    EXPECT_TRUE(isAllowed("rmdir -p" + quoted(link)));
    EXPECT_FALSE(isAllowed("rmdir -p" + quoted("/Library/Application Support/Adobe/")));
    EXPECT_FALSE(isAllowed("rmdir -p" + quoted("/home/user/")));
}

} // namespace
} // namespace corvellane::runner
