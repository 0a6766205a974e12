#include "pack/Description.h"

#include <gtest/gtest.h>

#include <tuple>

namespace corvellane::pack {
namespace {

constexpr auto whole = R"(name = "Grain"
identifier = "com.example.GrainInstaller"
version = "1.2.0~rc1"
publisher = "Example & Co"
contact = "Example <help@example.com>"
homepage = "https://grain.example/"
notes = """First.
Second."""
)";

std::string with(const std::string& key, const std::string& line)
{
    std::string text = whole;
    const std::size_t begin = text.find(key + " = ");
    return text.replace(begin, text.find('\n', begin) - begin, line);
}

TEST(Description, isReadWhole)
{
    const auto [description, problems] = readDescription(whole, "");
    EXPECT_EQ(problems, std::vector<std::string>());
    EXPECT_EQ(description.packageName(), "com.example.graininstaller");
    EXPECT_EQ(description.publisher, "Example & Co");
    EXPECT_EQ(description.notes, "First.\nSecond.");
    EXPECT_EQ(readDescription("\xEF\xBB\xBF" + with("name", "name = \" Grain\\t\"\r"), "").description.name, "Grain");
    EXPECT_EQ(readDescription(whole, "3").description.version, "3");
    EXPECT_EQ(readDescription(with("version", ""), "3").problems, std::vector<std::string>());
}

TEST(Description, saysWhatIsWrongByNameAndLine)
{
    const std::vector<std::tuple<std::string, std::string>> rows{
        {with("identifier", R"(identifier = "GrainInstaller")"), "installer.toml:2: “identifier” must be"},
        {with("identifier", R"(identifier = "com.example.../../etc")"), "installer.toml:2: “identifier” must be"},
        {with("identifier", R"(identifier = "com.Example.Grain")"), "installer.toml:2: “identifier” must be"},
        {with("identifier", "identifier = \"com.example." + std::string(200, 'x') + '"'),
            "installer.toml:2: “identifier” is longer than 100 bytes"},
        {with("version", R"(version = "1.0-beta")"), "installer.toml:3: “version” must be"},
        {with("version", R"(version = "1.0 beta")"), "installer.toml:3: “version” must be"},
        {with("version", "version = 1.0"), "installer.toml:3: “version” must be"},
        {with("version", R"(version = "../1")"), "installer.toml:3: “version” must be"},
        {with("version", ""), "installer.toml: “version” is missing"},
        {with("contact", R"(contact = "help@example.com")"), "installer.toml:5: “contact” must be"},
        {with("name", R"(name = "Two\nDepends: lines")"), "installer.toml:1: “name” must be"},
        {with("name", R"(name = "")"), "installer.toml:1: “name” must be"},
        {with("name", R"(name = " ")"), "installer.toml:1: “name” must be"},
        {with("name", "name = \"\xff\""), "installer.toml:1: "},
        {with("name", R"(nmae = "Grain")"),
            "installer.toml:1: there is no key “nmae”; there are name, identifier, version, publisher, contact, "
            "homepage and notes"},
        // Matching what has no end would need a stack without one.
        {with("notes", "notes = \"\"\"" + std::string(1000000, 'x')),
            "installer.toml:7: “notes” is longer than 10000 bytes"},
        {with("notes", "notes"), "installer.toml:7:"},
    };
    for (const auto& [text, problem] : rows) {
        const std::vector<std::string> problems = readDescription(text, "").problems;
        ASSERT_FALSE(problems.empty()) << text;
        EXPECT_EQ(problems.front().substr(0, problem.size()), problem);
    }
    EXPECT_EQ(readDescription("", "").problems.size(), 7) << "all that is missing at once";
    const std::vector<std::string> problems = readDescription(whole, "1 2").problems;
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems[0].starts_with("“version” must be a digit")) << "it is not the file's: " << problems[0];
}

} // namespace
} // namespace corvellane::pack
