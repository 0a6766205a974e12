#include "platform/script/Parser.h"

#include <gtest/gtest.h>

namespace corvellane::script {
namespace {

/// What is wrong with the script and where: "message @start+length".
std::string errorOf(const std::string& source)
{
    const auto parsed = parse(source);
    if (parsed) {
        return "none";
    }
    const auto& [failure, range] = parsed.error();
    EXPECT_EQ(failure.number, -2741);
    return failure.message + " @" + std::to_string(range.start) + "+" + std::to_string(range.length);
}

std::string repeated(const std::string& part, int times)
{
    std::string text;
    for (int count = 0; count < times; ++count) {
        text += part;
    }
    return text;
}

TEST(Parser, saysWhatItExpectedWhatItFoundAndWhere)
{
    const std::vector<std::pair<std::string, std::string>> rows{
        {"return 1 2", "Expected end of line but found “2”. @9+1"},
        {"end try", "Expected end of line but found “end”. @0+3"},
        {"try\nreturn 1", "Expected “end” but found end of script. @12+0"},
        {"try\nend tell", "Expected “try” but found “tell”. @8+4"},
        {"try\non\nend try", "Expected “error” but found end of line. @6+1"},
        {"try 1\nend try", "Expected end of line but found “1”. @4+1"},
        {"try\nreturn 1\non error 5\nend try", "Expected name but found “5”. @22+1"},
        {"set to to 1", "Expected name but found “to”. @4+2"},
        {"set a 1", "Expected “to” but found “1”. @6+1"},
        {"set a to", "Expected expression but found end of script. @8+0"},
        {"return (1", "Expected “)” but found end of script. @9+0"},
        {"do shell \"a\"", "Expected “script” but found “\"a\"”. @9+3"},
        {"do shell script", "Expected expression but found end of script. @15+0"},
        {"do shell script \"a\" with privileges", "Expected “administrator” but found “privileges”. @25+10"},
        {"path to desktop", "Expected “application” but found “desktop”. @8+7"},
        {"tell application Finder\nend tell", "Expected application name but found “Finder”. @17+6"},
        {"return \"a\\xb\"", "Expected “\"” but found unknown token. @9+2"},
        {"return \"open", "Expected expression but found end of script. @7+5"},
        {"return 1 (* open", "Expected end of line but found end of script. @9+7"},
        {"return \xE2\x82\xAC", "Expected expression but found unknown token. @7+3"},
        {"return 99999999999999999999", "The number “99999999999999999999” is too large. @7+20"},
    };
    for (const auto& [source, error] : rows) {
        EXPECT_EQ(errorOf(source), error) << source;
    }
}

TEST(Parser, nestsAsDeepAsScriptsAreWrittenAndNoDeeper)
{
    EXPECT_EQ(errorOf(repeated("try\n", 150) + repeated("end try\n", 150)), "none");
    EXPECT_EQ(errorOf("return " + repeated("(", 150) + "1" + repeated(")", 150)), "none");
    EXPECT_EQ(errorOf("return \"\"" + repeated(" & \"\"", 100000)), "none");
    for (const char* opening : {"try\n", "(", "do shell script ", "tell application \"Finder\"\n"}) {
        EXPECT_EQ(errorOf(repeated(opening, 100000)).substr(0, 32), "The script is nested too deeply.") << opening;
    }
}

} // namespace
} // namespace corvellane::script
