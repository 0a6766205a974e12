#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <vector>

namespace corvellane::rtf {

/// Gives equal values the same small number: the first value is 0, the next different one 1, and so on.
template <typename Value>
class Interner {
    static_assert(std::has_unique_object_representations_v<Value> && sizeof(Value) % sizeof(std::uint32_t) == 0);

public:
    std::uint32_t index(const Value& value)
    {
        if (values_.size() * 2 >= slots_.size()) {
            grow();
        }
        std::uint32_t& slot = slotOf(value);
        if (slot == 0) {
            values_.push_back(value);
            slot = static_cast<std::uint32_t>(values_.size());
        }
        return slot - 1;
    }

    const Value& operator[](std::uint32_t index) const { return values_[index]; }

    const std::vector<Value>& values() const { return values_; }

private:
    static std::size_t hash(const Value& value)
    {
        std::array<std::uint32_t, sizeof(Value) / sizeof(std::uint32_t)> words;
        std::memcpy(words.data(), &value, sizeof(Value));
        std::uint64_t sum = 0;
        for (const std::uint32_t word : words) {
            sum = (sum ^ word) * 0x9E3779B97F4A7C15U;
            sum ^= sum >> 29U;
        }
        return static_cast<std::size_t>(sum);
    }

    std::uint32_t& slotOf(const Value& value)
    {
        std::size_t place = hash(value) & (slots_.size() - 1);
        while (slots_[place] != 0 && std::memcmp(&values_[slots_[place] - 1], &value, sizeof(Value)) != 0) {
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

    std::vector<Value> values_;
    /// 1 + the index of a value, 0 for a free slot; the size is a power of two.
    std::vector<std::uint32_t> slots_;
};

} // namespace corvellane::rtf
