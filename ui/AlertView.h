#pragma once

#include "view/View.h"

namespace corvellane {

class AppSettings;

/// The layer in front of the whole window: dims it and shows a card when the state asks for an alert, and is nothing
/// otherwise.
struct AlertView {
    AppSettings& settings;

    view::View body() const;
};

} // namespace corvellane
