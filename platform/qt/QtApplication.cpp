#include "platform/qt/QtApplication.h"

#include "platform/Menu.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

#include <chrono>
#include <utility>

namespace corvellane {
namespace {

QString shown(const char* title)
{
    return QCoreApplication::translate("Menu", title);
}

void requestEnd()
{
    QMetaObject::invokeMethod(QCoreApplication::instance(), [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
}

void zoom(QWidget& window)
{
    window.setWindowState(window.windowState() ^ Qt::WindowMaximized);
}

bool asksForMenu(const QEvent& event)
{
    if (event.type() == QEvent::KeyPress) {
        const auto& key = static_cast<const QKeyEvent&>(event);
        return key.key() == Qt::Key_F10 && key.modifiers() == Qt::NoModifier;
    }
    return event.type() == QEvent::ContextMenu
        && static_cast<const QContextMenuEvent&>(event).reason() == QContextMenuEvent::Keyboard;
}

} // namespace

/// The main menu as plain values, from which real menus are made when they are to be shown.
class QtMenu : public Menu {
public:
    struct Command {
        const char* title;
        std::function<void(QWidget& window)> perform;
    };
    /// Titles are keys of the context "Menu" in the table of translated texts.
    struct Item {
        const char* title;
        std::vector<Command> commands;
    };

    explicit QtMenu(std::vector<Item> items)
        : items_(std::move(items))
    {
    }

    std::vector<std::string> itemTitles() const override
    {
        std::vector<std::string> titles;
        titles.reserve(items_.size());
        for (const Item& item : items_) {
            titles.emplace_back(item.title);
        }
        return titles;
    }

    void removeItem(std::size_t index) override { items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(index)); }

    /// Adds a menu for each item to a menu or a menu bar; their commands act on `window` while `hears` gives true.
    template <typename Parent>
    void addTo(Parent& parent, QWidget& window, const std::function<bool()>& hears) const
    {
        for (const Item& item : items_) {
            QMenu* const menu = parent.addMenu(shown(item.title));
            for (const Command& command : item.commands) {
                QObject::connect(menu->addAction(shown(command.title)), &QAction::triggered, &window,
                    [&window, hears, perform = command.perform] {
                        if (hears()) {
                            perform(window);
                        }
                    });
            }
        }
    }

private:
    std::vector<Item> items_;
};

namespace {

/// A window's way to the main menu; owned by the window.
class MenuOffer : public QObject {
public:
    MenuOffer(std::shared_ptr<const QtMenu> menu, QWidget& window, std::function<bool()> hears)
        : QObject(&window)
        , menu_(std::move(menu))
        , window_(window)
        , hears_(std::move(hears))
    {
        window.installEventFilter(this);
        // Finding out whether the desktop has a menu bar of its own asks the session bus; the first picture goes first.
        QTimer::singleShot(std::chrono::milliseconds(500), this, [this] { exportToDesktop(); });
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched != &window_ || exported_ || !asksForMenu(*event)) {
            return QObject::eventFilter(watched, event);
        }
        popUp();
        return true;
    }

private:
    void exportToDesktop()
    {
        auto* const bar = new QMenuBar(&window_);
        exported_ = bar->isNativeMenuBar();
        if (exported_) {
            menu_->addTo(*bar, window_, hears_);
        } else {
            delete bar;
        }
    }

    void popUp()
    {
        auto* const popup = new QMenu(&window_);
        popup->setAttribute(Qt::WA_DeleteOnClose);
        menu_->addTo(*popup, window_, hears_);
        popup->popup(window_.mapToGlobal(QPoint(0, 0)));
    }

    std::shared_ptr<const QtMenu> menu_;
    QWidget& window_;
    std::function<bool()> hears_;
    bool exported_ = false;
};

} // namespace

QtApplication::QtApplication()
    : menu_(std::make_shared<QtMenu>(std::vector<QtMenu::Item>{
          {"Corvellane Plugin Installer", {{"Quit", [](QWidget&) { requestEnd(); }}}},
          {"File", {}},
          {"Edit", {}},
          {"View", {}},
          {"Window", {{"Minimize", [](QWidget& window) { window.showMinimized(); }}, {"Zoom", zoom}}},
      }))
{
}

void QtApplication::terminate()
{
    requestEnd();
}

Menu* QtApplication::mainMenu()
{
    return menu_.get();
}

void QtApplication::offerMainMenu(QWidget& window, std::function<bool()> hears)
{
    new MenuOffer(menu_, window, std::move(hears));
}

} // namespace corvellane
