#include "view/ListRows.h"

#include "products/DisplayOrder.h"

namespace corvellane::view {

std::vector<std::string> locationsOf(const List& list)
{
    return inDisplayOrder(list.onlyTicked ? onlySelected(*list.products) : *list.products);
}

std::vector<ListRow> rowsOf(const List& list)
{
    std::vector<ListRow> rows;
    for (const std::string& location : locationsOf(list)) {
        rows.push_back(list.row(location, list.products->at(location)));
    }
    return rows;
}

} // namespace corvellane::view
