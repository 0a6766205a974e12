#pragma once

namespace corvellane::view {

/// The distances that are called standard, in points.
constexpr int standardSpacing = 8;
constexpr int standardPadding = 16;
/// The least length of a gap that names none.
constexpr int standardGap = 8;

/// A length without an upper limit.
constexpr int unbounded = 1 << 24;

} // namespace corvellane::view
