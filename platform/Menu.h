#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace corvellane {

/// The program's main menu. Main thread.
class Menu {
public:
    virtual ~Menu() = default;

    /// The titles of the top-level items as they stand now, in their order, not translated.
    virtual std::vector<std::string> itemTitles() const = 0;

    /// Removes the top-level item at `index`, which counts from 0 and exists, with everything in it.
    virtual void removeItem(std::size_t index) = 0;
};

} // namespace corvellane
