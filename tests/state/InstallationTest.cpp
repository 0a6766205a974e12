#include "state/AppSettings.h"

#include "install/AccessProbe.h"
#include "platform/posix/QueueDispatcher.h"
#include "tests/FakePlatform.h"

#include <gmock/gmock.h>

#include <atomic>
#include <thread>

namespace corvellane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class InstallationTest : public testing::Test {
protected:
    InstallationTest() { settings->currentPage.set(Page::install); }

    /// The observable writes of one run, seen from before each of them: the page and the error flag.
    std::vector<std::pair<Page, bool>> writesOf(ScriptExecution execution)
    {
        platform.scripts.executions.push_back(std::move(execution));
        std::vector<std::pair<Page, bool>> writes;
        const auto subscription = settings->objectWillChange.subscribe(
            [&] { writes.emplace_back(settings->currentPage.get(), settings->completedWithErrors.get()); });
        settings->performScript("script");
        EXPECT_THAT(writes, IsEmpty()) << "nothing changes before the call has returned";
        platform.dispatcher.runMainQueue();
        return writes;
    }

    FakePlatform platform;
    std::shared_ptr<AppSettings> settings = std::make_shared<AppSettings>(platform.services());
};

ScriptExecution answer(const std::string& text)
{
    return {ScriptExecution::Value{text}, std::nullopt};
}

TEST_F(InstallationTest, writesTheOutcomeStepByStep)
{
    struct Row {
        ScriptExecution execution;
        std::vector<std::pair<Page, bool>> writes;
        Page page;
        bool withErrors;
        std::string log;
        std::vector<std::string> lines;
    };
    const ScriptExecution::Value ok{"Ok"};
    const ScriptExecution::Value failure{"cp: /x: gone"};
    const std::pair before(Page::install, false);
    const std::pair after(Page::install, true);
    const std::vector<Row> rows{
        {answer("Ok"), {before}, Page::summary, false, "", {"ERROR VALUE Ok"}},
        {answer("cp: /x: gone"), {before, after}, Page::summary, true, "cp: /x: gone", {"ERROR VALUE cp: /x: gone"}},
        {answer("ok"), {before, after}, Page::summary, true, "ok", {"ERROR VALUE ok"}},
        {answer("User canceled"), {before, after}, Page::summary, true, "User canceled", {"ERROR VALUE User canceled"}},
        {answer(""), {before, after}, Page::summary, true, "", {"ERROR VALUE "}},
        {answer("User canceled."), {}, Page::install, false, "", {}},
        {{std::nullopt, std::nullopt}, {}, Page::install, false, "", {}},
        {{ScriptExecution::Value{}, std::nullopt}, {}, Page::install, false, "", {}},
        {{std::nullopt, "{}"}, {before}, Page::install, true, "", {"Error: {}"}},
        {{ok, "{}"}, {before, after}, Page::summary, true, "", {"Error: {}", "ERROR VALUE Ok"}},
        {{failure, "{}"}, {before, after, after}, Page::summary, true, "cp: /x: gone",
            {"Error: {}", "ERROR VALUE cp: /x: gone"}},
    };
    for (const Row& row : rows) {
        settings = std::make_shared<AppSettings>(platform.services());
        settings->currentPage.set(Page::install);
        platform.console.lines.clear();
        EXPECT_EQ(writesOf(row.execution), row.writes);
        EXPECT_EQ(settings->currentPage.get(), row.page);
        EXPECT_EQ(settings->completedWithErrors.get(), row.withErrors);
        EXPECT_EQ(*settings->logDetailsStr, row.log);
        EXPECT_EQ(platform.console.lines, row.lines);
    }
}

TEST_F(InstallationTest, changesNothingWhenNoScriptCanBeMadeAndForgetsNoEarlierFailure)
{
    settings->performScript("script");
    platform.dispatcher.runMainQueue();
    EXPECT_EQ(settings->currentPage.get(), Page::install);
    writesOf(answer("broken"));
    settings->currentPage.set(Page::install);
    writesOf(answer("Ok"));
    EXPECT_TRUE(settings->completedWithErrors.get());
    EXPECT_EQ(*settings->logDetailsStr, "broken");
}

TEST_F(InstallationTest, composesPrintsAndRunsTheScriptOfTheTickedProductsInDisplayOrder)
{
    platform.addProduct("b", {"Two.plugin"});
    platform.addProduct("B", {"One.plugin"});
    platform.addProduct("a", {"Left out.plugin"});
    settings->refreshProducts();
    settings->toggleProduct("/Resources/Products/a");
    settings->showPermanentlyAlert.set(true);
    settings->confirmInstallation();
    EXPECT_FALSE(settings->showPermanentlyAlert.get());
    ASSERT_EQ(platform.scripts.sources.size(), 1U);
    const std::string& script = platform.scripts.sources.front();
    EXPECT_THAT(platform.console.lines, ElementsAre("SCRIPT -- " + script));
    EXPECT_LT(script.find("/Products/B/One.plugin"), script.find("/Products/b/Two.plugin"));
    EXPECT_EQ(script.find("Left out"), std::string::npos);
    EXPECT_NE(script.find(R"(mkdir -p \"/Applications/Corvellane/\")"), std::string::npos);
}

TEST_F(InstallationTest, probesAndThenInstallsOrAsks)
{
    const std::vector<std::pair<std::string, FinderAccess>> rows{
        {"0", FinderAccess::denied},
        {"2", FinderAccess::unknown},
        {"", FinderAccess::unknown},
        {"1", FinderAccess::allowed},
    };
    for (const auto& [text, access] : rows) {
        const bool asks = access != FinderAccess::allowed;
        platform.scripts.sources.clear();
        platform.scripts.answerText(text);
        settings->showFinderAlert.set(!asks);
        settings->checkAccess();
        platform.dispatcher.runMainQueue();
        EXPECT_EQ(settings->accessType.get(), access);
        EXPECT_EQ(settings->showFinderAlert.get(), asks);
        EXPECT_EQ(platform.scripts.sources.size(), asks ? 1U : 2U);
        EXPECT_EQ(platform.scripts.sources.front(), accessProbeScript);
    }
    EXPECT_EQ(accessProbeScript.size(), 223U);
}

TEST_F(InstallationTest, leavesTheAlertAloneWhenTheProbeItselfFails)
{
    settings->accessType.set(FinderAccess::denied);
    settings->showFinderAlert.set(true);
    platform.scripts.executions.push_back({std::nullopt, std::nullopt});
    settings->checkAccess();
    platform.dispatcher.runMainQueue();
    EXPECT_EQ(settings->accessType.get(), FinderAccess::denied);
    platform.scripts.executions.push_back({ScriptExecution::Value{"1"}, "{}"});
    settings->checkAccess();
    platform.dispatcher.runMainQueue();
    EXPECT_EQ(settings->accessType.get(), FinderAccess::unknown);
    EXPECT_TRUE(settings->showFinderAlert.get());
    EXPECT_THAT(platform.console.lines, ElementsAre("Error: {}"));
    EXPECT_EQ(platform.scripts.sources.size(), 2U);
}

/// Takes a moment for every script and then notes the thread that it ran on.
struct SlowScripts : ScriptService {
    struct Slow : Script {
        explicit Slow(SlowScripts& owner)
            : scripts(owner)
        {
        }
        ScriptExecution execute() override
        {
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
            scripts.executedOn = std::this_thread::get_id();
            return answer("Ok");
        }
        SlowScripts& scripts;
    };
    std::unique_ptr<Script> create(std::string) override { return std::make_unique<Slow>(*this); }
    std::atomic<std::thread::id> executedOn;
};

TEST_F(InstallationTest, blocksTheMainThreadAndOutlivesItsOwner)
{
    QueueDispatcher dispatcher;
    SlowScripts scripts;
    Platform services = platform.services();
    const Platform threaded{services.application, services.console, dispatcher, services.files, services.pasteboard,
        services.resources, scripts, services.folders, services.workspace};
    auto owned = std::make_shared<AppSettings>(threaded);
    const std::weak_ptr<AppSettings> observed = owned;
    owned->performScript("script");
    EXPECT_NE(scripts.executedOn.load(), std::thread::id()) << "the call returns once the script has ended";
    EXPECT_NE(scripts.executedOn.load(), std::this_thread::get_id());
    EXPECT_EQ(owned->currentPage.get(), Page::intro);
    owned.reset();
    EXPECT_FALSE(observed.expired()) << "the completion still needs it";
    dispatcher.runMainQueue();
    EXPECT_TRUE(observed.expired());
    EXPECT_THAT(platform.console.lines, ElementsAre("ERROR VALUE Ok"));
}

} // namespace
} // namespace corvellane
