#include "ui/SelectedProductsPage.h"

#include "base/PathNames.h"
#include "state/AppSettings.h"
#include "ui/PageTexts.h"
#include "view/Build.h"

namespace corvellane {
namespace {

ListRow plainRow(const std::string& location, bool)
{
    const std::string name(lastPathComponent(location));
    return {name, Symbol{"circle.fill", Tint::gray, 13}, Text{name, false, Font{14, false}}, std::nullopt};
}

} // namespace

View selectedProductsView(const AppSettings& settings)
{
    return holding(List{pageTitle(Page::install), &settings.products.get(), true, plainRow, {}});
}

} // namespace corvellane
