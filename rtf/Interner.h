#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace corvellane::rtf {

/// Gives equal values the same small number: the first value is 0, the next different one 1, and so on.
template <typename Value>
class Interner {
    static_assert(std::has_unique_object_representations_v<Value>);

public:
    /// When there are `most` values, a new one gets the number 0.
    explicit Interner(std::size_t most)
        : most_(most)
    {
    }

    std::uint32_t index(const Value& value)
    {
        if (values_.size() * 2 >= slots_.size()) {
            grow();
        }
        std::uint32_t& slot = slotOf(value);
        if (slot == 0) {
            if (values_.size() == most_) {
                return 0;
            }
            values_.push_back(value);
            slot = static_cast<std::uint32_t>(values_.size());
        }
        return slot - 1;
    }

    const Value& operator[](std::uint32_t index) const { return values_[index]; }

    const std::vector<Value>& values() const { return values_; }

    std::vector<Value> take() { return std::move(values_); }

private:
    static std::string_view bytesOf(const Value& value)
    {
        return {reinterpret_cast<const char*>(&value), sizeof value};
    }

    std::uint32_t& slotOf(const Value& value)
    {
        std::size_t place = std::hash<std::string_view>()(bytesOf(value)) & (slots_.size() - 1);
        while (slots_[place] != 0 && bytesOf(values_[slots_[place] - 1]) != bytesOf(value)) {
            place = (place + 1) & (slots_.size() - 1);
        }
        return slots_[place];
    }

    void grow()
    {
        slots_.assign(slots_.empty() ? 64 : slots_.size() * 2, 0);
        for (std::uint32_t index = 0; index < values_.size(); ++index) {
            slotOf(values_[index]) = index + 1;
        }
    }

    std::size_t most_;
    std::vector<Value> values_;
    /// 1 + the index of a value, 0 for a free slot; the size is a power of two.
    std::vector<std::uint32_t> slots_;
};

} // namespace corvellane::rtf
