#include "view/StackLayout.h"

#include "view/Metrics.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <set>

namespace corvellane::view {
namespace {

using Members = std::vector<std::size_t>;

class Distribution {
public:
    explicit Distribution(std::span<const StackItem> items)
        : items_(items)
    {
        for (const StackItem& item : items) {
            lengths_.push_back(item.extent.minimum);
        }
    }

    std::vector<int> of(int total)
    {
        int spare = total - std::accumulate(lengths_.begin(), lengths_.end(), 0);
        for (const double priority : priorities()) {
            for (const bool limited : {true, false}) {
                spare = raise(members(priority, limited), spare);
            }
        }
        return lengths_;
    }

private:
    std::set<double, std::greater<>> priorities() const
    {
        std::set<double, std::greater<>> all;
        for (const StackItem& item : items_) {
            all.insert(item.priority);
        }
        return all;
    }

    Members members(double priority, bool limited) const
    {
        Members found;
        for (std::size_t index = 0; index < items_.size(); ++index) {
            const StackItem& item = items_[index];
            if (item.priority >= priority && item.priority <= priority
                && (item.extent.maximum < unbounded) == limited) {
                found.push_back(index);
            }
        }
        return found;
    }

    int lengthAt(std::size_t index, int level) const { return fitted(level, items_[index].extent); }

    int lengthAt(const Members& members, int level) const
    {
        return std::accumulate(members.begin(), members.end(), 0,
            [&](int sum, std::size_t index) { return sumOf(sum, lengthAt(index, level)); });
    }

    /// Raises the shortest members to one level for which the spare length suffices; gives what is left of it.
    int raise(const Members& members, int spare)
    {
        if (members.empty() || spare <= 0) {
            return spare;
        }
        const int budget = lengthAt(members, 0) + spare;
        int level = 0;
        for (int step = unbounded; step > 0; step /= 2) {
            if (level + step <= unbounded && lengthAt(members, level + step) <= budget) {
                level += step;
            }
        }
        int left = budget - lengthAt(members, level);
        for (const std::size_t index : members) {
            const bool takesOneMore = left > 0 && lengthAt(index, level + 1) > lengthAt(index, level);
            lengths_[index] = lengthAt(index, level) + (takesOneMore ? 1 : 0);
            left -= takesOneMore ? 1 : 0;
        }
        return left;
    }

    std::span<const StackItem> items_;
    std::vector<int> lengths_;
};

} // namespace

std::vector<int> distribute(int total, std::span<const StackItem> items)
{
    return Distribution(items).of(total);
}

int fitted(int offered, Extent extent)
{
    return std::max(extent.minimum, std::min(offered, extent.maximum));
}

int sumOf(int length, int other)
{
    return std::min(unbounded, length + other);
}

} // namespace corvellane::view
