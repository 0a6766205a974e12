#include "platform/qt/QtApplication.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include <chrono>
#include <functional>

namespace corvellane {
namespace {

using namespace std::chrono_literals;

QStringList titles(const QMenu& menu)
{
    QStringList result;
    for (const QAction* const action : menu.actions()) {
        result.append(action->text());
    }
    return result;
}

QMenu* openMenu()
{
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

class MainMenu : public testing::Test {
protected:
    struct StubbornWindow : QWidget {
        void closeEvent(QCloseEvent* event) override { event->ignore(); }
    };

    MainMenu()
    {
        window_.resize(648, 405);
        for (int count = 0; count < 3; ++count) {
            application_.mainMenu()->removeItem(1);
        }
        application_.offerMainMenu(window_, [this] { return hears_; });
        window_.show();
    }

    QAction* choose(int item, int command)
    {
        press(Qt::Key_F10);
        QAction* const action = openMenu()->actions().at(item)->menu()->actions().at(command);
        action->trigger();
        openMenu()->close();
        return action;
    }

    void press(int key)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&button_, &event);
    }

    QtApplication application_;
    StubbornWindow window_;
    bool hears_ = true;
    QPushButton button_{&window_};
};

TEST_F(MainMenu, opensByKeyboardWithWhatWasLeftAndTakesNoRoom)
{
    press(Qt::Key_F10);
    ASSERT_NE(openMenu(), nullptr);
    EXPECT_EQ(titles(*openMenu()), (QStringList{"Corvellane Plugin Installer", "Window"}));
    EXPECT_EQ(titles(*openMenu()->actions().at(1)->menu()), (QStringList{"Minimize", "Zoom"}));
    EXPECT_EQ(openMenu()->pos(), window_.mapToGlobal(QPoint(0, 0)));
    openMenu()->close();
    QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(&button_, &menuKey);
    ASSERT_NE(openMenu(), nullptr);
    openMenu()->close();
    EXPECT_EQ(window_.size(), QSize(648, 405));
}

TEST_F(MainMenu, staysShutForAnyOtherKeyAndForTheMouse)
{
    press(Qt::Key_F9);
    QContextMenuEvent rightClick(QContextMenuEvent::Mouse, {}, {});
    QApplication::sendEvent(&button_, &rightClick);
    EXPECT_EQ(openMenu(), nullptr);
}

TEST_F(MainMenu, zoomsThereAndBackAndMinimizes)
{
    hears_ = false;
    choose(1, 1);
    EXPECT_FALSE(window_.isMaximized()) << "nobody is heard at the moment";
    hears_ = true;
    choose(1, 1);
    EXPECT_TRUE(window_.isMaximized());
    choose(1, 1);
    EXPECT_FALSE(window_.isMaximized());
    choose(1, 0);
    EXPECT_TRUE(window_.isMinimized());
}

TEST_F(MainMenu, endsTheEventLoopOnlyLaterAndWhateverTheWindowSays)
{
    const std::vector<std::function<void()>> requests{[&] { choose(0, 0); }, [&] { application_.terminate(); }};
    for (const auto& request : requests) {
        QTimer::singleShot(5s, &window_, [] { QCoreApplication::exit(1); });
        request(); // no loop runs yet that could end at once
        EXPECT_EQ(QApplication::exec(), 0);
    }
}

TEST(QtApplication, suppliesTheUsualMenus)
{
    QtApplication application;
    EXPECT_EQ(application.mainMenu()->itemTitles(),
        (std::vector<std::string>{"Corvellane Plugin Installer", "File", "Edit", "View", "Window"}));
}

} // namespace
} // namespace corvellane
