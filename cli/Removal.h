#pragma once

#include "cli/Comparison.h"
#include "cli/Installation.h"
#include "install/ScriptText.h"

#include <string>
#include <vector>

namespace corvellane {

/// A link, and where it points.
struct LinkToElement {
    std::string path;
    std::string target;
};

/// How what installing made is taken away again.
struct Removal {
    /// What is removed whole, with all below it: nothing else is in it.
    std::vector<std::string> entries;
    /// Links to our elements.
    std::vector<LinkToElement> links;
    /// Shared folders that are then empty, as far as installing has made them; with "/" at their end.
    std::vector<std::string> folders;
    /// What stays, because it is not, or no longer, what installing makes, and why.
    std::vector<Difference> kept;

    bool isEmpty() const { return entries.empty() && links.empty() && folders.empty(); }
};

/// Looks at what is there now, and removes nothing. Of what lies in the elements' copies, the contents do not count.
Removal removalOf(const Installation& installation);

/// What must go before the element is installed anew, so that everything is then as it is shipped: `cp` leaves the
/// owner and the mode of what it writes over, and what it does not know.
Removal clearanceFor(const MadeElement& element, const ElementComparison& comparison);

/// The part of a removal that is done for the person at `index`: what lies in his home, and for the first person all
/// that lies in none.
Removal partFor(const Removal& removal, const std::vector<Person>& persons, std::size_t index);

/// Appends the commands of a removal.
void appendRemoval(ScriptText& script, const Removal& removal);

} // namespace corvellane
