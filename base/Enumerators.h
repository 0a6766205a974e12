#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace corvellane {

/// Every value of an enumeration that is numbered from 0, in its order. `NameOf` names each of them in a switch that
/// the compiler checks to be whole, and gives an empty text for any other number: what has no name does not build, and
/// what has one is here.
template <typename Enum, std::string_view (*NameOf)(Enum)>
constexpr auto enumerators = [] {
    constexpr std::size_t count = [] {
        std::size_t named = 0;
        while (!NameOf(static_cast<Enum>(named)).empty()) {
            ++named;
        }
        return named;
    }();
    std::array<Enum, count> values{};
    for (std::size_t index = 0; index < count; ++index) {
        values[index] = static_cast<Enum>(index);
    }
    return values;
}();

} // namespace corvellane
