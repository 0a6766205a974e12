#include "state/PageFlow.h"

namespace corvellane {

Page pageAfter(Page page)
{
    return pageFromRawValue(rawValue(page) + 1).value_or(page);
}

Page pageBefore(Page page)
{
    return pageFromRawValue(rawValue(page) - 1).value_or(page);
}

Alert visibleAlert(Page page, const AlertFlags& flags)
{
    if (!flags.agreeWithTerms && flags.showLicenseAlert) {
        return Alert::agreement;
    }
    if (flags.showPermanentlyAlert && page == Page::install) {
        return Alert::installConfirmation;
    }
    if (flags.showFinderAlert && page == Page::install) {
        return Alert::automationPermission;
    }
    if (flags.showLogDetailsWindow && page == Page::summary) {
        return Alert::logDetails;
    }
    return Alert::none;
}

bool isGoBackEnabled(Page page)
{
    return page != Page::intro && page != Page::summary;
}

bool isForwardEnabled(Page page, const ProductSelection& products)
{
    return page != Page::products || products.anyTicked();
}

bool isSelectAllVisible(Page page)
{
    return page == Page::products;
}

bool isSelectAllEnabled(const ProductSelection& products)
{
    return !products.empty();
}

} // namespace corvellane
