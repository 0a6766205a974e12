#pragma once

#include <span>
#include <vector>

namespace corvellane::view {

/// The lengths that something can take, in points; `unbounded` for no upper limit.
struct Extent {
    int minimum = 0;
    int maximum = 0;
    bool operator==(const Extent&) const = default;
};

struct StackItem {
    Extent extent;
    double priority = 0;
};

/// The lengths of a stack's children when they have `total` together, in their order.
///
/// Every child gets its minimum; where that is too much already, the children run over. What is spare goes to the
/// highest priority first. Within a priority, children with an upper limit reach it first; the others come out equally
/// long, except where a minimum is longer than that.
std::vector<int> distribute(int total, std::span<const StackItem> items);

/// A length within the extent, as near to the offered one as it can be.
int fitted(int offered, Extent extent);

/// Adds lengths of which one may be unbounded.
int sumOf(int length, int other);

} // namespace corvellane::view
