#include "ui/ButtonRow.h"

#include "state/AppSettings.h"
#include "view/Build.h"

namespace corvellane {
namespace {

View extraButton(AppSettings& settings)
{
    if (!isSelectAllVisible(settings.currentPage.get())) {
        return nothing();
    }
    return button("Select All", [&settings] { settings.selectAll(); }, isSelectAllEnabled(settings.products.get()));
}

View goBackButton(AppSettings& settings)
{
    return button("Go Back", [&settings] { settings.goBack(); }, isGoBackEnabled(settings.currentPage.get()));
}

View forwardButton(AppSettings& settings)
{
    const Page page = settings.currentPage.get();
    return button(
        page == Page::summary ? "Close" : "Next", [&settings] { settings.nextAction(); },
        isForwardEnabled(page, settings.products.get()))
        .withPadding(aboveAndBelow);
}

} // namespace

View buttonRow(AppSettings& settings)
{
    return row(
        standardSpacing, extraButton(settings), gap(), goBackButton(settings), forwardButton(settings), space(20));
}

} // namespace corvellane
