#pragma once

#include "products/ProductSelection.h"
#include "state/Page.h"

namespace corvellane {

/// What lies in front of the window's pages.
enum class Alert { none, agreement, installConfirmation, automationPermission, logDetails };

/// The flags that ask for an alert.
struct AlertFlags {
    bool agreeWithTerms = false;
    bool showLicenseAlert = false;
    bool showPermanentlyAlert = false;
    bool showFinderAlert = false;
    bool showLogDetailsWindow = false;
};

/// The page behind this one; the last page has none behind it and is given back itself.
Page pageAfter(Page page);

/// The page before this one; the first page has none before it and is given back itself.
Page pageBefore(Page page);

/// At most one alert is shown, whatever the flags; a flag on a page that is not its own shows nothing.
Alert visibleAlert(Page page, const AlertFlags& flags);

bool isGoBackEnabled(Page page);
bool isForwardEnabled(Page page, const ProductSelection& products);
bool isSelectAllVisible(Page page);
bool isSelectAllEnabled(const ProductSelection& products);

} // namespace corvellane
