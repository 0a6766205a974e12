#pragma once

#include <memory>
#include <utility>

namespace corvellane {

/// A value that never changes, shared by all copies of this. Comparing two copies of one snapshot costs nothing; other
/// snapshots are equal when their values are. Any thread.
template <typename Value>
class Snapshot {
public:
    Snapshot()
        : Snapshot(Value())
    {
    }
    Snapshot(Value value) // NOLINT(google-explicit-constructor): a value stands where its snapshot is wanted
        : value_(std::make_shared<const Value>(std::move(value)))
    {
    }

    const Value& operator*() const { return *value_; }
    const Value* operator->() const { return value_.get(); }

    /// Whether this is the very same snapshot, whatever it holds.
    bool isSame(const Snapshot& other) const { return value_ == other.value_; }
    bool operator==(const Snapshot& other) const { return isSame(other) || *value_ == *other.value_; }

private:
    std::shared_ptr<const Value> value_;
};

} // namespace corvellane
