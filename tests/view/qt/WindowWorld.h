#pragma once

#include "app/CorvellaneInstallerApp.h"
#include "tests/FakePlatform.h"
#include "tests/tour/WindowUser.h"

#include <QApplication>
#include <QListView>
#include <QTest>

#include <gmock/gmock.h>

#include <string>

namespace corvellane::view {

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
        scene = std::make_unique<CorvellaneInstallerApp>(platform.services());
        scene->window().show();
        scene->window().activateWindow();
        settle();
    }

    static void settle()
    {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    AppSettings& settings() { return scene->settings(); }
    QWidget& window() { return scene->window(); }

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

    /// The visible widget of that accessible name.
    template <typename Kind = QWidget>
    Kind* named(const QString& name)
    {
        for (QWidget* const each : window().findChildren<QWidget*>()) {
            auto* const found = dynamic_cast<Kind*>(each);
            if (found != nullptr && each->isVisible() && each->accessibleName() == name) {
                return found;
            }
        }
        return nullptr;
    }

    static QString focusName()
    {
        const QWidget* const focus = QApplication::focusWidget();
        return focus == nullptr ? QString() : focus->accessibleName();
    }

    FakePlatform platform;
    std::unique_ptr<CorvellaneInstallerApp> scene;
    WindowUser user() { return WindowUser(window()); }
};

} // namespace corvellane::view
