#pragma once

#include "agreement/Document.h"
#include "base/Signal.h"
#include "view/View.h"

#include <functional>

namespace corvellane {

class AppSettings;

/// The root view of the window: the side bar, the title, the current page's content, the buttons, and the alert layer
/// in front of them. Owns the agreement, which it loads when it is made.
class ContentView {
public:
    static constexpr view::Tint textColor = view::Tint::black;
    static constexpr view::Tint backgroundColor = view::Tint::windowBackground;

    ContentView(const Resources& resources, const Files& files, Console& console);
    ContentView(const ContentView&) = delete;
    ContentView& operator=(const ContentView&) = delete;

    /// The whole tree, from the state as it is now.
    view::View body(AppSettings& settings) const;

    /// Has `changed` called before every change of the state or of the agreement, until this view goes.
    void observe(AppSettings& settings, const std::function<void()>& changed);

private:
    view::View mainColumn(AppSettings& settings) const;
    view::View contentRow(AppSettings& settings) const;
    view::View stateView(AppSettings& settings) const;

    Document document_;
    Subscription settingsChange_;
    Subscription documentChange_;
};

} // namespace corvellane
