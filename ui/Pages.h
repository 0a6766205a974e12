#pragma once

#include "base/Snapshot.h"
#include "view/View.h"

namespace corvellane {

class AppSettings;

/// Formatted text, read-only, in the size that its surroundings offer.
struct TextWithAttributedString {
    Snapshot<rtf::AttributedText> attributedString;

    view::View body() const;
};

/// The welcome message.
view::View introView();

/// All products as a check list, or the message that there are none.
view::View productsView(AppSettings& settings);

/// The products that will be installed.
view::View selectedProductsView(const AppSettings& settings);

/// How the installation ended; after a failure with a link to the details.
view::View summaryView(AppSettings& settings);

} // namespace corvellane
