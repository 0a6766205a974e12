#include "tests/state/StateTest.h"

#include "install/AccessProbe.h"

namespace corvellane {
namespace {

class InstallationTest : public StateTest {
protected:
    InstallationTest() { settings->currentPage.set(Page::install); }
};

Journal operator+(Journal first, const Journal& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

/// One run of a script, from the call to its return.
Journal run(const std::string& script)
{
    return {"enter", "submit to the background", "wait", "make script " + script, "execute", "leave",
        "submit to the main queue", "wait is over"};
}

/// The same when the service can make no script.
Journal runOfNothing(const std::string& script)
{
    return {"enter", "submit to the background", "wait", "make script " + script, "leave", "wait is over"};
}

ScriptExecution result(std::optional<std::string> text, std::optional<std::string> error = {})
{
    return {ScriptExecution::Value{std::move(text)}, std::move(error)};
}

const ScriptExecution noResult;

const HostPaths hosts{"/Applications/Corvellane/",
    "/Library/Application Support/Adobe/Common/Plug-ins/7.0/MediaCore/Corvellane/",
    "/Library/Application Support/Adobe/Plug-Ins/CC/Corvellane/",
    "/Users/user/Library/Application Support/Adobe/Lightroom/"};

TEST_F(InstallationTest, writesTheOutcomeStepByStepAfterTheWait)
{
    const std::vector<std::pair<ScriptExecution, Journal>> rows{
        {result("Ok"), {"change install", "print ERROR VALUE Ok", "now summary"}},
        {result("User canceled."), {"now install"}},
        {result({}), {"now install"}},
        {noResult, {"now install"}},
        {result({}, "{}"), {"print Error: {}", "change install", "now install withErrors"}},
        {result("User canceled.", "{}"), {"print Error: {}", "change install", "now install withErrors"}},
        {result("Ok", "{}"),
            {"print Error: {}", "change install", "change install withErrors", "print ERROR VALUE Ok",
                "now summary withErrors"}},
        {result("gone", "{}"),
            {"print Error: {}", "change install", "change install withErrors", "change install withErrors log gone",
                "print ERROR VALUE gone", "now summary withErrors log gone"}},
    };
    for (const auto& [execution, outcome] : rows) {
        settings->currentPage.set(Page::install);
        settings->completedWithErrors.set(false);
        platform.scripts.executions.push_back(execution);
        EXPECT_EQ(after(&AppSettings::performScript, "script"), run("script") + outcome);
    }
}

TEST_F(InstallationTest, takesAnyOtherTextForAFailureAndNoFailureBack)
{
    for (const std::string text : {"cp: /x: gone", "ok", "Ok.", "Ok\n", "User canceled", "user canceled."}) {
        settings->currentPage.set(Page::install);
        platform.scripts.answerText(text);
        EXPECT_EQ(after(&AppSettings::performScript, "script").back(), "now summary withErrors log " + text);
    }
    platform.scripts.answerText("");
    EXPECT_EQ(after(&AppSettings::performScript, "script").back(), "now summary withErrors");
    platform.scripts.answerText("Ok");
    EXPECT_EQ(after(&AppSettings::performScript, "script").back(), "now summary withErrors");
}

TEST_F(InstallationTest, installsTheTickedProductsInDisplayOrderOnceItIsConfirmed)
{
    platform.addProduct("a", {"Left out.plugin"});
    platform.addProduct("b", {"Two.plugin"});
    platform.addProduct("B", {"One Tessellane.plugin", "Three Lightroom"});
    settings->refreshProducts();
    settings->toggleProduct("/Resources/Products/a");
    settings->showPermanentlyAlert.set(true);
    const std::string products = "/Resources/Products/";
    const std::string script = composeInstallScript(
        hosts, {products + "B/One Tessellane.plugin", products + "B/Three Lightroom", products + "b/Two.plugin"});
    EXPECT_EQ(after(&AppSettings::confirmInstallation),
        Journal({"change install +B -a +b permanentlyAlert", "list /Resources/Products/B", "list /Resources/Products/b",
            "print SCRIPT -- " + script})
            + runOfNothing(script) + Journal{"now install +B -a +b"});
}

TEST_F(InstallationTest, probesAndThenInstallsOrAsks)
{
    struct Row {
        bool asksBefore;
        ScriptExecution execution;
        Journal outcome;
    };
    const std::string script = composeInstallScript(hosts, {});
    const std::vector<Row> rows{
        {false, result("0"), {"change install", "change install access 0", "now install access 0 finderAlert"}},
        {true, noResult, {"now install access 0 finderAlert"}},
        {false, result({}), {"now install access 0"}},
        {false, result(""), {"change install access 0", "change install", "now install finderAlert"}},
        {true, result("1"),
            Journal{"change install finderAlert", "print SCRIPT -- " + script} + runOfNothing(script)
                + Journal{"change install access 1 finderAlert", "now install access 1"}},
        {true, result("1", "{}"),
            {"change install access 1 finderAlert", "print Error: {}", "now install finderAlert"}},
        {false, result("2"), {"change install", "change install", "now install finderAlert"}},
    };
    EXPECT_EQ(accessProbeScript.size(), 223U);
    const std::string probe(accessProbeScript);
    for (const Row& row : rows) {
        settings->showFinderAlert.set(row.asksBefore);
        platform.scripts.executions.push_back(row.execution);
        EXPECT_EQ(after(&AppSettings::checkAccess), run(probe) + row.outcome);
    }
    EXPECT_EQ(after(&AppSettings::checkAccess), runOfNothing(probe) + Journal{"now install finderAlert"});
}

TEST_F(InstallationTest, keepsTheStateUntilItsOutcomeIsWritten)
{
    platform.scripts.answerText("Ok");
    settings->performScript("script");
    const std::weak_ptr<AppSettings> observed = settings;
    changes.reset();
    settings.reset();
    EXPECT_FALSE(observed.expired());
    platform.dispatcher.runMainQueue();
    EXPECT_TRUE(observed.expired());
    EXPECT_EQ(platform.console.lines, Journal{"ERROR VALUE Ok"});
}

} // namespace
} // namespace corvellane
