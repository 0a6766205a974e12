#pragma once

#include "base/Snapshot.h"

#include <cstddef>
#include <string>
#include <vector>

namespace corvellane {

/// The products on offer, and which of them are ticked: the path of each product's folder without a trailing "/", and
/// a flag, in display order. A value; copies share the paths, so that what changes when a product is ticked is small.
class ProductSelection {
public:
    ProductSelection() = default;

    /// All of them ticked; the paths differ, and come in any order.
    explicit ProductSelection(std::vector<std::string> locations);

    bool empty() const { return locations_->empty(); }

    /// The paths of all products, ticked or not.
    const Snapshot<std::vector<std::string>>& locations() const { return locations_; }

    /// For each of the paths, whether it is ticked.
    const std::vector<bool>& ticks() const { return ticks_; }

    bool isTicked(const std::string& location) const;
    bool anyTicked() const;

    /// The paths of those that are ticked.
    std::vector<std::string> ticked() const;

    /// Turns the product's tick to its opposite; a product that is absent is added ticked.
    void toggle(const std::string& location);

    void tickAll();

    bool operator==(const ProductSelection&) const = default;

private:
    void add(const std::string& location);

    Snapshot<std::vector<std::string>> locations_;
    std::vector<bool> ticks_;
};

} // namespace corvellane
