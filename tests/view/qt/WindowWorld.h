#pragma once

#include "app/CorvellaneInstallerApp.h"
#include "tests/FakePlatform.h"
#include "tests/tour/WindowUser.h"

#include <QAccessible>
#include <QApplication>
#include <QListView>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace corvellane::view {

/// The widget's area in its window.
inline QRect areaOf(const QWidget& widget)
{
    return {widget.mapTo(widget.window(), QPoint()), widget.size()};
}

/// The whole wizard in a real window, on a world that records what was asked of it.
class WindowWorld : public testing::Test {
protected:
    WindowWorld()
    {
        static const bool prepared = (ViewHost::prepareApplication(), true);
        static_cast<void>(prepared);
        for (int number = 0; number < 40; ++number) {
            platform.addProduct("Product " + std::to_string(100 + number), {});
        }
        open(platform.services());
    }

    /// Shows a new wizard in place of the one before.
    void open(const Platform& services)
    {
        scene = std::make_unique<CorvellaneInstallerApp>(services);
        window().show();
        window().activateWindow();
        settle();
    }

    static void settle()
    {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    AppSettings& settings() { return scene->settings(); }
    ViewHost& window() { return scene->window(); }
    WindowUser user() { return WindowUser(window()); }

    void goTo(Page page)
    {
        settings().currentPage.set(page);
        settle();
    }

    void show(Observable<bool>& flag, bool shown)
    {
        flag.set(shown);
        settle();
    }

    /// What assistive technology calls the widget.
    static QString heardName(QWidget& widget)
    {
        return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
    }

    /// The visible widget of that accessible name.
    template <typename Kind = QWidget>
    Kind* named(const QString& name)
    {
        for (Kind* const each : window().findChildren<Kind*>()) {
            if (each->isVisible() && heardName(*each) == name) {
                return each;
            }
        }
        ADD_FAILURE() << "nothing in sight is named " << name.toStdString();
        return nullptr;
    }

    FakePlatform platform;
    std::unique_ptr<CorvellaneInstallerApp> scene;
};

} // namespace corvellane::view
