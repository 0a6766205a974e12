#include "platform/script/InterpretedScriptService.h"

#include "install/AccessProbe.h"
#include "tests/platform/script/RecordingHost.h"

#include <gmock/gmock.h>

namespace corvellane::script {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class ScriptServiceTest : public testing::Test {
protected:
    ScriptExecution execute(const std::string& source)
    {
        return InterpretedScriptService(recorder.host()).create(source)->execute();
    }

    /// The result's text; "nothing" for a result without text, "error" when there is no result.
    std::string resultOf(const std::string& source)
    {
        const ScriptExecution execution = execute(source);
        return execution.result ? execution.result->text.value_or("nothing") : "error";
    }

    RecordingHost recorder;
};

TEST_F(ScriptServiceTest, givesWhatAScriptReturnsOrItsLastValue)
{
    recorder.results["date"] = {0, "today\n", ""};
    recorder.results["lines"] = {0, "a\n\nb\r\n", ""};
    recorder.results["more"] = {0, "a\n\n", ""};
    const std::vector<std::pair<std::string, std::string>> rows{
        {"return \"Ok\"", "Ok"},
        {"RETURN 007", "7"},
        {"return", "nothing"},
        {"", "nothing"},
        {"\"last\"", "last"},
        {"set a to 1\nset b to a & \"!\"\nreturn \"<\" & b & \">\"", "<1!>"},
        {"set a to \"1\"\nset b to A & 2\nreturn \"<\" & B & \">\"", "<12>"},
        {"return (\"a\" & (\"b\" & \"c\"))", "abc"},
        {"do shell script \"da\" & \"te\"", "today"},
        {"(do shell script \"date\") & \"!\"", "today!"},
        {"do shell script \"lines\"", "a\n\nb"},
        {"do shell script \"more\"", "a\n"},
        {"return 1\nreturn 2", "1"},
        {"try\nreturn 1\nend try\nreturn 2", "1"},
        {"try\nreturn unknown\non error\nreturn 5\nend try", "5"},
        {"try\nreturn unknown\nend try", "nothing"},
        {"try\nreturn unknown\nend try\nreturn 6", "6"},
        {"tell application \"FINDER\"\nreturn 1\nend tell", "1"},
        {"return path to application support", "/Library/Application Support"},
        {"return \"a\\\"\\\\\\n\\r\\tb\nc\rd\"", "a\"\\\n\r\tb\nc\rd"},
        {"-- a comment\r\n\r\nreturn 1 -- one\r\n# done", "1"},
        {"(* a (* nested *) comment *) return (**) 3 (* ** *)", "3"},
        {"return \xC2\xAC \n 4", "4"},
        {"# ends with the line\rreturn \xC2\xAC\r\n 5", "5"},
    };
    for (const auto& [source, result] : rows) {
        EXPECT_EQ(resultOf(source), result) << source;
    }
}

TEST_F(ScriptServiceTest, turnsAFailingCommandIntoAnErrorThatCanBeCaught)
{
    recorder.results["loud"] = {3, "out\n", "loud:\n\\failed\n\n"};
    recorder.results["quiet"] = {1, "", ""};
    const auto caught = [](const std::string& command) {
        return "try\ndo shell script \"" + command + "\"\ndo shell script \"not run\"\non error m\nreturn m\nend try";
    };
    EXPECT_EQ(resultOf(caught("loud")), "loud:\n\\failed\n");
    EXPECT_EQ(resultOf(caught("quiet")), "The command exited with a non-zero status.");
    EXPECT_THAT(recorder.journal, ElementsAre("begin", "loud", "end", "begin", "quiet", "end"));
    EXPECT_EQ(resultOf("try\ntry\nreturn x\non error m\nreturn y\nend try\non error m\nreturn m\nend try"),
        "The variable y is not defined.");
    const ScriptExecution uncaught = execute("\n do shell script \"loud\"");
    EXPECT_FALSE(uncaught.result);
    EXPECT_EQ(uncaught.errorDescription,
        "{\n    NSAppleScriptErrorBriefMessage = \"loud:\\n\\\\failed\\n\";\n    NSAppleScriptErrorMessage = "
        "\"loud:\\n\\\\failed\\n\";\n"
        "    NSAppleScriptErrorNumber = 3;\n    NSAppleScriptErrorRange = \"NSRange: {2, 22}\";\n}");
}

TEST_F(ScriptServiceTest, asksForAdministratorRightsOnceARunAndTellsWhichCommandHasCome)
{
    const std::string script = "do shell script \"a\"\ndo shell script \"b\" with administrator privileges\n"
                               "do shell script \"c\" & \"!\"  with administrator privileges\n"
                               "do shell script \"d\" without administrator privileges\n"
                               "do shell script (do shell script \"e\" with administrator privileges) & "
                               "\"\\\"\" with administrator privileges";
    for (int run = 0; run < 2; ++run) {
        recorder.journal.clear();
        execute(script);
        EXPECT_THAT(recorder.journal,
            ElementsAre("begin b; ; e; ;", "a", "prompt", "start 0", "sudo b", "start 1", "sudo c!", "d", "start 2",
                "sudo e", "start 3", "sudo \"", "end"));
    }
    recorder.declines = true;
    recorder.journal.clear();
    EXPECT_EQ(resultOf("try\n" + script + "\non error m\nreturn m\nend try"), "User canceled.");
    EXPECT_THAT(recorder.journal, ElementsAre("begin b; ; e; ;", "a", "prompt", "end"));
    EXPECT_THAT(*execute(script).errorDescription, HasSubstr("NSAppleScriptErrorNumber = \"-128\";"));
}

TEST_F(ScriptServiceTest, answersTheProbeByWhatTheFileManagerSays)
{
    EXPECT_EQ(resultOf(std::string(accessProbeScript)), "1");
    recorder.fileManagerAnswers = false;
    EXPECT_EQ(resultOf(std::string(accessProbeScript)), "0");
    const std::string error = *execute("tell application \"Finder\"\nend tell").errorDescription;
    EXPECT_THAT(error, HasSubstr("\"Not authorized to send Apple events to Finder.\";"));
    EXPECT_THAT(error, HasSubstr("\"-1743\";"));
    EXPECT_THAT(*execute("tell application \"Other\"\nend").errorDescription, HasSubstr("\"-1728\""));
}

} // namespace
} // namespace corvellane::script
