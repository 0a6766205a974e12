#include "products/ProductSelection.h"

#include "products/DisplayOrder.h"

#include <algorithm>
#include <utility>

namespace corvellane {

ProductSelection::ProductSelection(std::vector<std::string> locations)
    : locations_(inDisplayOrder(std::move(locations)))
    , ticks_(locations_->size(), true)
{
}

bool ProductSelection::isTicked(const std::string& location) const
{
    const auto found = std::ranges::find(*locations_, location);
    return found != locations_->end() && ticks_[static_cast<std::size_t>(found - locations_->begin())];
}

bool ProductSelection::anyTicked() const
{
    return std::ranges::find(ticks_, true) != ticks_.end();
}

std::vector<std::string> ProductSelection::ticked() const
{
    std::vector<std::string> locations;
    for (std::size_t index = 0; index < ticks_.size(); ++index) {
        if (ticks_[index]) {
            locations.push_back((*locations_)[index]);
        }
    }
    return locations;
}

void ProductSelection::toggle(const std::string& location)
{
    const auto found = std::ranges::find(*locations_, location);
    if (found == locations_->end()) {
        return add(location);
    }
    ticks_[static_cast<std::size_t>(found - locations_->begin())].flip();
}

void ProductSelection::add(const std::string& location)
{
    std::vector<std::string> locations = *locations_;
    locations.push_back(location);
    ProductSelection whole(std::move(locations));
    for (std::size_t index = 0; index < ticks_.size(); ++index) {
        if (!ticks_[index]) {
            whole.toggle((*locations_)[index]);
        }
    }
    *this = std::move(whole);
}

void ProductSelection::tickAll()
{
    ticks_.assign(ticks_.size(), true);
}

} // namespace corvellane
