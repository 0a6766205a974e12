#include "ui/ProductsPage.h"

#include "base/PathNames.h"
#include "state/AppSettings.h"
#include "ui/PageTexts.h"
#include "view/Build.h"

namespace corvellane {
namespace {

ListRow checkRow(const std::string& location, bool ticked)
{
    return {location,
        ticked ? Symbol{"checkmark.square.fill", Tint::blue, 14} : Symbol{"square", Tint::secondaryLabel, 14},
        Text{std::string(lastPathComponent(location)), false, Font{14, false}}, ticked};
}

View noProducts()
{
    return column(standardSpacing, Placement::centre, gap(),
        row(standardSpacing, gap(), text("No products found"), gap()), gap());
}

} // namespace

View productsView(AppSettings& settings)
{
    if (settings.products.get().empty()) {
        return noProducts();
    }
    return holding(List{pageTitle(Page::products), &settings.products.get(), false, checkRow,
        {[&settings](const std::string& location) { settings.toggleProduct(location); }}});
}

} // namespace corvellane
