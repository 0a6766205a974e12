#include "tests/state/StateTest.h"

#include "install/AccessProbe.h"

namespace corvellane {
namespace {

class InstallationTest : public StateTest {
protected:
    InstallationTest() { settings->currentPage.set(Page::install); }
};

/// One run of a script, from the call to its return, and what follows it; no script is made of one that is not `made`.
Journal run(const std::string& script, const Journal& outcome, bool made = true)
{
    Journal journal{"enter", "submit to the background", "wait", "make script " + script, "leave", "wait is over"};
    if (made) {
        journal.insert(journal.end() - 2, "execute");
        journal.insert(journal.end() - 1, "submit to the main queue");
    }
    journal.insert(journal.end(), outcome.begin(), outcome.end());
    return journal;
}

/// The installation of the elements, from the printing of its script on, where no script is made of that.
Journal installing(const std::vector<std::string>& elements, const Journal& outcome)
{
    const HostPaths hosts{"/Applications/Corvellane/",
        "/Library/Application Support/Adobe/Common/Plug-ins/7.0/MediaCore/Corvellane/",
        "/Library/Application Support/Adobe/Plug-Ins/CC/Corvellane/",
        "/Users/user/Library/Application Support/Adobe/Lightroom/"};
    const std::string script = composeInstallScript(hosts, elements);
    Journal journal = run(script, outcome, false);
    journal.insert(journal.begin(), "print SCRIPT -- " + script);
    return journal;
}

ScriptExecution result(std::optional<std::string> text, std::optional<std::string> error = {})
{
    return {ScriptExecution::Value{std::move(text)}, std::move(error)};
}

const ScriptExecution noResult;

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
        EXPECT_EQ(after(&AppSettings::performScript, "script"), run("script", outcome));
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
    Journal expected
        = installing({products + "B/One Tessellane.plugin", products + "B/Three Lightroom", products + "b/Two.plugin"},
            {"now install +B -a +b"});
    expected.insert(expected.begin(),
        {"change install +B -a +b permanentlyAlert", "list " + products + "B", "list " + products + "b"});
    EXPECT_EQ(after(&AppSettings::confirmInstallation), expected);
}

TEST_F(InstallationTest, probesAndThenInstallsOrAsks)
{
    struct Row {
        bool asksBefore;
        ScriptExecution execution;
        Journal outcome;
    };
    Journal installs = installing({}, {"change install access 1 finderAlert", "now install access 1"});
    installs.insert(installs.begin(), "change install finderAlert");
    const std::vector<Row> rows{
        {false, result("0"), {"change install", "change install access 0", "now install access 0 finderAlert"}},
        {true, noResult, {"now install access 0 finderAlert"}},
        {false, result({}), {"now install access 0"}},
        {false, result(""), {"change install access 0", "change install", "now install finderAlert"}},
        {true, result("1"), installs},
        {true, result("1", "{}"),
            {"change install access 1 finderAlert", "print Error: {}", "now install finderAlert"}},
        {false, result("2"), {"change install", "change install", "now install finderAlert"}},
        {false, result("1 "), {"change install", "change install", "now install finderAlert"}},
    };
    EXPECT_EQ(accessProbeScript.size(), 223U);
    const std::string probe(accessProbeScript);
    for (const Row& row : rows) {
        settings->showFinderAlert.set(row.asksBefore);
        platform.scripts.executions.push_back(row.execution);
        EXPECT_EQ(after(&AppSettings::checkAccess), run(probe, row.outcome));
    }
    EXPECT_EQ(after(&AppSettings::checkAccess), run(probe, {"now install finderAlert"}, false));
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
