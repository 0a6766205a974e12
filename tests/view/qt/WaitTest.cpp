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

/// Makes a script that runs until it is told to end.
struct HeldScripts : ScriptService {
    struct Held : Script {
        explicit Held(std::future<std::string> wanted)
            : result(std::move(wanted))
        {
        }
        ScriptExecution execute() override { return {ScriptExecution::Value{result.get()}, std::nullopt}; }
        std::future<std::string> result;
    };
    std::unique_ptr<Script> create(std::string) override { return std::make_unique<Held>(end.get_future()); }
    std::promise<std::string> end;
};

/// The wizard with real waits: the installation takes as long as the test wants.
class WaitTest : public WindowWorld {
protected:
    WaitTest()
    {
        const Platform all = platform.services();
        open({all.application, all.console, dispatcher, all.files, all.pasteboard, all.resources, scripts, all.folders,
            all.workspace});
        showWaits(dispatcher, window());
        goTo(Page::install);
        show(settings().showPermanentlyAlert, true);
    }
    ~WaitTest() override { scene.reset(); }

    /// Installs; during the wait does what `meanwhile` does, and then lets the script end with `result`.
    template <typename Meanwhile>
    void install(const std::string& result, Meanwhile meanwhile)
    {
        QTimer::singleShot(200ms, &window(), [&, result] {
            meanwhile();
            scripts.end.set_value(result);
        });
        user().click("Install");
        EXPECT_TRUE(WindowUser::wait([&] { return window().hears(); }));
    }

    void pressOverTheBus(const char* button)
    {
        auto* const actions = QAccessible::queryAccessibleInterface(named(button))->actionInterface();
        actions->doAction(QAccessibleActionInterface::pressAction());
    }

    HeldScripts scripts;
    QtDispatcher dispatcher;
};

TEST_F(WaitTest, hearsNobodyAndShowsWhatItShowedUntilTheOutcomeIsThere)
{
    install("Ok", [&] {
        EXPECT_FALSE(settings().showPermanentlyAlert.get());
        EXPECT_TRUE(user().canPress("Install")) << "the confirmation stays until the wait is over";
        user().clickThrough("Next");
        user().click("Cancel");
        user().press(Qt::Key_Space);
        pressOverTheBus("Install");
        EXPECT_FALSE(window().close());
        settings().logDetailsStr = std::string("written during the wait");
        window().scheduleRedraw();
        QTest::qWait(20);
        EXPECT_TRUE(user().canPress("Install")) << "no tree is made";
        EXPECT_EQ(settings().currentPage.get(), Page::install);
    });
    EXPECT_TRUE(user().reads("You have been successfully installed selected products."));
    EXPECT_EQ(platform.application.terminations, 0);
    user().click("Close");
    EXPECT_EQ(platform.application.terminations, 0) << "whoever is still pressing meant what was there before";
    QTest::qWait(QGuiApplication::styleHints()->mouseDoubleClickInterval() + 50);
    user().click("Close");
    EXPECT_EQ(platform.application.terminations, 1);
}

TEST_F(WaitTest, hearsAgainAtOnceWhereNothingHasChangedAndNobodyPressed)
{
    install("User canceled.", [] { });
    EXPECT_EQ(settings().currentPage.get(), Page::install);
    user().click("Next");
    EXPECT_TRUE(settings().showPermanentlyAlert.get());
}

TEST_F(WaitTest, dropsAPressOverTheBusThatIsCarriedOutAfterTheWait)
{
    show(settings().showPermanentlyAlert, false);
    show(settings().showFinderAlert, true);
    const auto group = dispatcher.makeWaitGroup();
    group->enter();
    QTimer::singleShot(10ms, &window(), [&] {
        pressOverTheBus("Close");
        group->leave();
    });
    group->wait();
    QTest::qWait(200);
    EXPECT_TRUE(window().hears());
    EXPECT_EQ(platform.application.terminations, 0);
    pressOverTheBus("Close");
    QTest::qWait(200);
    EXPECT_EQ(platform.application.terminations, 1);
}

TEST_F(WaitTest, endsAfterTheWaitWhenTheSessionEndsMeanwhile)
{
    install("Ok", [&] {
        QEvent quit(QEvent::Quit);
        QCoreApplication::sendEvent(QCoreApplication::instance(), &quit);
        user().clickThrough("Next");
        EXPECT_TRUE(window().isVisible());
    });
    settle();
    EXPECT_FALSE(window().isVisible());
}

TEST_F(WaitTest, showsTheWorkAsABarThatOthersCanRead)
{
    double part = 0.25;
    window().setPartDone([&] { return part; });
    install("Ok", [&] {
        QWidget* const bar = named("Progress of the installation");
        EXPECT_EQ(areaOf(*bar).bottom(), window().rect().bottom());
        const auto* const value = QAccessible::queryAccessibleInterface(bar)->valueInterface();
        EXPECT_EQ(value->currentValue().toInt(), 250);
        part = 0.5;
        QTest::qWait(150);
        EXPECT_EQ(value->currentValue().toInt(), 500);
    });
}

} // namespace
} // namespace corvellane::view
