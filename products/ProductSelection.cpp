#include "products/ProductSelection.h"

#include <algorithm>
#include <iterator>

namespace corvellane {

void toggleProduct(ProductSelection& selection, const std::string& location)
{
    const auto [product, isNew] = selection.try_emplace(location, true);
    if (!isNew) {
        product->second = !product->second;
    }
}

ProductSelection allSelected(ProductSelection selection)
{
    for (auto& [location, selected] : selection) {
        selected = true;
    }
    return selection;
}

bool anySelected(const ProductSelection& selection)
{
    return std::any_of(selection.begin(), selection.end(), [](const auto& product) { return product.second; });
}

ProductSelection onlySelected(const ProductSelection& selection)
{
    ProductSelection selected;
    std::copy_if(selection.begin(), selection.end(), std::inserter(selected, selected.end()),
        [](const auto& product) { return product.second; });
    return selected;
}

} // namespace corvellane
