#include "app/WaitingWindow.h"
#include "tests/view/qt/WindowWorld.h"

#include <QAccessible>
#include <QStyleHints>
#include <QTimer>

#include <chrono>
#include <future>

namespace corvellane::view {
namespace {

using namespace std::chrono_literals;

/// A script that runs until it is told to end.
class HeldScripts : public ScriptService {
public:
    std::unique_ptr<Script> create(std::string) override { return std::make_unique<Held>(*this); }

    void end(const std::string& result) { end_.set_value(result); }

private:
    struct Held : Script {
        explicit Held(HeldScripts& owner)
            : scripts(owner)
        {
        }
        ScriptExecution execute() override
        {
            return {ScriptExecution::Value{scripts.end_.get_future().get()}, std::nullopt};
        }
        HeldScripts& scripts;
    };

    std::promise<std::string> end_;
};

/// The wizard with real waits: the installation takes as long as the test wants.
class WaitTest : public testing::Test {
protected:
    WaitTest()
    {
        showWaits(dispatcher, window());
        settings().currentPage.set(Page::install);
        settings().showPermanentlyAlert.set(true);
        window().show();
        window().activateWindow();
        QTest::qWait(50);
    }

    Platform services()
    {
        Platform all = platform.services();
        return {all.application, all.console, dispatcher, all.files, all.pasteboard, all.resources, scripts,
            all.folders, all.workspace};
    }

    AppSettings& settings() { return scene.settings(); }
    ViewHost& window() { return scene.window(); }

    /// Installs; during the wait does what `meanwhile` does, and then lets the script end with `result`.
    template <typename Meanwhile>
    void install(const std::string& result, Meanwhile meanwhile)
    {
        QTimer::singleShot(200ms, &window(), [&, result] {
            meanwhile();
            scripts.end(result);
        });
        user.click("Install");
        EXPECT_TRUE(WindowUser::wait([&] { return window().hears(); }));
    }

    QAccessibleInterface* accessible(const QString& name)
    {
        for (QWidget* const each : window().findChildren<QWidget*>()) {
            if (each->isVisible() && each->accessibleName() == name) {
                return QAccessible::queryAccessibleInterface(each);
            }
        }
        return nullptr;
    }

    const bool prepared = (ViewHost::prepareApplication(), true);
    FakePlatform platform;
    HeldScripts scripts;
    QtDispatcher dispatcher;
    CorvellaneInstallerApp scene{services()};
    WindowUser user{window()};
};

TEST_F(WaitTest, hearsNobodyAndShowsWhatItShowedUntilTheOutcomeIsThere)
{
    install("Ok", [&] {
        EXPECT_FALSE(settings().showPermanentlyAlert.get());
        EXPECT_TRUE(user.canPress("Install")) << "the confirmation stays until the wait is over";
        user.clickThrough("Next");
        user.click("Cancel");
        user.press(Qt::Key_Space);
        accessible("Install")->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        EXPECT_FALSE(window().close());
        settings().logDetailsStr = std::string("written during the wait");
        window().scheduleRedraw();
        QTest::qWait(20);
        EXPECT_TRUE(user.canPress("Install")) << "no tree is made";
        EXPECT_EQ(settings().currentPage.get(), Page::install);
    });
    EXPECT_TRUE(user.reads("You have been successfully installed selected products."));
    EXPECT_EQ(platform.application.terminations, 0);
    user.click("Close");
    EXPECT_EQ(platform.application.terminations, 0) << "whoever is still pressing meant what was there before";
    QTest::qWait(QGuiApplication::styleHints()->mouseDoubleClickInterval() + 50);
    user.click("Close");
    EXPECT_EQ(platform.application.terminations, 1);
}

TEST_F(WaitTest, hearsAgainAtOnceWhereNothingHasChangedAndNobodyPressed)
{
    install("User canceled.", [] { });
    EXPECT_EQ(settings().currentPage.get(), Page::install);
    user.click("Next");
    EXPECT_TRUE(settings().showPermanentlyAlert.get());
}

TEST_F(WaitTest, showsTheWorkAsABarThatOthersCanRead)
{
    double part = 0.25;
    window().setPartDone([&] { return part; });
    EXPECT_EQ(accessible("Progress of the installation"), nullptr);
    install("Ok", [&] {
        QAccessibleInterface* const bar = accessible("Progress of the installation");
        ASSERT_NE(bar, nullptr);
        EXPECT_EQ(bar->role(), QAccessible::ProgressBar);
        EXPECT_EQ(bar->valueInterface()->currentValue().toInt(), 250);
        EXPECT_EQ(bar->rect().bottom(), window().mapToGlobal(window().rect().bottomLeft()).y());
        part = 0.5;
        QTest::qWait(150);
        EXPECT_EQ(bar->valueInterface()->currentValue().toInt(), 500);
    });
    EXPECT_EQ(accessible("Progress of the installation"), nullptr);
}

TEST_F(WaitTest, leavesTheMainQueueAloneMeanwhile)
{
    std::vector<std::string> steps;
    dispatcher.submitToMain([&] { steps.emplace_back("submitted before"); });
    install("User canceled.", [&] {
        dispatcher.submitToMain([&] { steps.emplace_back("submitted meanwhile"); });
        QTest::qWait(20);
        steps.emplace_back("still waiting");
    });
    QTest::qWait(20);
    EXPECT_EQ(steps, (std::vector<std::string>{"still waiting", "submitted before", "submitted meanwhile"}));
}

} // namespace
} // namespace corvellane::view
