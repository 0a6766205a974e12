#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <string_view>
#include <type_traits>
#include <unordered_map>
#include <vector>

namespace corvellane::rtf {

/// Gives equal values the same small number: the first value is 0, the next different one 1, and so on.
template <typename Value>
class Interner {
    static_assert(std::has_unique_object_representations_v<Value>);

public:
    std::uint32_t index(const Value& value)
    {
        const auto [place, isNew] = indices_.try_emplace(value, static_cast<std::uint32_t>(values_.size()));
        if (isNew) {
            values_.push_back(value);
        }
        return place->second;
    }

    const Value& operator[](std::uint32_t index) const { return values_[index]; }

    const std::vector<Value>& values() const { return values_; }

private:
    struct Hash {
        std::size_t operator()(const Value& value) const
        {
            return std::hash<std::string_view>()({reinterpret_cast<const char*>(&value), sizeof value});
        }
    };

    std::unordered_map<Value, std::uint32_t, Hash> indices_;
    std::vector<Value> values_;
};

} // namespace corvellane::rtf
