#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
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
        grow();
    }

    std::uint32_t index(const Value& value)
    {
        std::uint32_t& slot = slotOf(value);
        return slot != 0 ? slot - 1 : add(value, slot);
    }

    const Value& operator[](std::uint32_t index) const { return values_[index]; }

    const std::vector<Value>& values() const { return values_; }

    std::vector<Value> take() { return std::move(values_); }

private:
    static constexpr std::size_t wordCount = (sizeof(Value) + 7) / 8;

    /// Eight of the value's bytes; the last word may overlap the one before it.
    static std::uint64_t word(const Value& value, std::size_t index)
    {
        std::uint64_t bytes = 0;
        static_assert(sizeof value >= sizeof bytes);
        const std::size_t begin = std::min(index * sizeof bytes, sizeof value - sizeof bytes);
        std::memcpy(&bytes, reinterpret_cast<const char*>(&value) + begin, sizeof bytes);
        return bytes;
    }

    static std::uint64_t hashOf(const Value& value)
    {
        std::uint64_t hash = 0;
        for (std::size_t index = 0; index < wordCount; ++index) {
            hash = (hash ^ word(value, index)) * 0x9E3779B97F4A7C15U;
        }
        return hash;
    }

    static bool areEqual(const Value& first, const Value& second)
    {
        std::uint64_t difference = 0;
        for (std::size_t index = 0; index < wordCount; ++index) {
            difference |= word(first, index) ^ word(second, index);
        }
        return difference == 0;
    }

    std::uint32_t& slotOf(const Value& value)
    {
        std::size_t place = hashOf(value) >> shift_;
        while (slots_[place] != 0 && !areEqual(values_[slots_[place] - 1], value)) {
            place = (place + 1) & (slots_.size() - 1);
        }
        return slots_[place];
    }

    /// Kept out of the search, which seldom comes to it.
    [[gnu::noinline]] std::uint32_t add(const Value& value, std::uint32_t& slot)
    {
        if (values_.size() == most_) {
            return 0;
        }
        values_.push_back(value);
        slot = static_cast<std::uint32_t>(values_.size());
        if (values_.size() * 2 >= slots_.size()) {
            grow();
        }
        return static_cast<std::uint32_t>(values_.size()) - 1;
    }

    void grow()
    {
        --shift_;
        slots_.assign(std::size_t{1} << (64 - shift_), 0);
        for (std::uint32_t index = 0; index < values_.size(); ++index) {
            slotOf(values_[index]) = index + 1;
        }
    }

    std::size_t most_;
    std::vector<Value> values_;
    /// 1 + the index of a value, 0 for a free slot; by the hash's bits from `shift_` on.
    std::vector<std::uint32_t> slots_;
    unsigned shift_ = 59;
};

} // namespace corvellane::rtf
