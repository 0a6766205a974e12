#include "platform/qt/QtApplication.h"

#include "platform/Menu.h"

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

QMenu* openMenu()
{
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

/// The titles of a menu, and of the menus in it after them.
QStringList titles(const QMenu& menu)
{
    QStringList result;
    for (const QAction* const action : menu.actions()) {
        result << action->text() << (action->menu() ? titles(*action->menu()) : QStringList());
    }
    return result;
}

class MainMenu : public testing::Test {
protected:
    struct StubbornWindow : QWidget {
        void closeEvent(QCloseEvent* event) override { event->ignore(); }
    };

    MainMenu()
    {
        window_.resize(648, 405);
        for (const char* const unused : {"File", "Edit", "View"}) {
            EXPECT_EQ(application_.mainMenu()->itemTitles().at(1), unused);
            application_.mainMenu()->removeItem(1);
        }
        application_.offerMainMenu(window_, [this] { return hears_; });
        window_.show();
    }

    void choose(int item, int command)
    {
        press(Qt::Key_F10);
        openMenu()->actions().at(item)->menu()->actions().at(command)->trigger();
        openMenu()->close();
    }

    void press(int key) { send(QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier)); }
    void send(QEvent&& event) { QApplication::sendEvent(&button_, &event); }

    QtApplication application_;
    StubbornWindow window_;
    bool hears_ = true;
    QPushButton button_{&window_};
};

TEST_F(MainMenu, opensByKeyboardAloneWithWhatWasLeftAndTakesNoRoom)
{
    press(Qt::Key_F9);
    send(QContextMenuEvent(QContextMenuEvent::Mouse, {}, {}));
    EXPECT_EQ(openMenu(), nullptr);
    press(Qt::Key_F10);
    ASSERT_NE(openMenu(), nullptr);
    EXPECT_EQ(titles(*openMenu()), (QStringList{"Corvellane Plugin Installer", "Quit", "Window", "Minimize", "Zoom"}));
    EXPECT_EQ(openMenu()->pos(), window_.mapToGlobal(QPoint(0, 0)));
    openMenu()->close();
    send(QContextMenuEvent(QContextMenuEvent::Keyboard, {}, {}));
    ASSERT_NE(openMenu(), nullptr);
    openMenu()->close();
    EXPECT_EQ(window_.size(), QSize(648, 405));
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

} // namespace
} // namespace corvellane
