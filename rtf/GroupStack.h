#pragma once

#include "rtf/State.h"

#include <cstddef>
#include <vector>

namespace corvellane::rtf {

/// The states around the groups that are open. Groups opened one inside the other in the same state take the room
/// of one.
class GroupStack {
public:
    void push(const GroupState& state)
    {
        if (levels_.empty() || !(levels_.back().state == state)) {
            levels_.push_back({state, 0});
        }
        ++levels_.back().groups;
        ++depth_;
    }

    /// The state that the innermost group was opened in; there must be an open group.
    GroupState pop()
    {
        const GroupState state = levels_.back().state;
        if (--levels_.back().groups == 0) {
            levels_.pop_back();
        }
        --depth_;
        return state;
    }

    std::size_t depth() const { return depth_; }

private:
    struct Level {
        GroupState state;
        std::size_t groups;
    };

    std::vector<Level> levels_;
    std::size_t depth_ = 0;
};

} // namespace corvellane::rtf
