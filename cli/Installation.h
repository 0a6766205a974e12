#pragma once

#include "base/Expected.h"
#include "install/HostPaths.h"
#include "platform/posix/UserAccount.h"
#include "tools/ModelTree.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace corvellane {

/// Somebody who gets Lightroom's presets and plug-ins, and the folders that are written to for him.
struct Person {
    UserAccount account;
    HostPaths hosts;
};

/// Something that installing makes.
struct Made {
    ModelEntry entry;
    uid_t owner = 0;
};

/// Whether it is a folder that a command makes by its name, for whatever comes into it.
inline bool isSharedFolder(const ModelEntry& entry)
{
    return entry.kind == ModelEntry::Kind::folder && entry.origin.empty();
}

/// By their paths, which have no "/" at their end.
using MadeEntries = std::map<std::string, Made>;

/// What installing one element makes, for all the persons.
struct MadeElement {
    /// The maker's.
    std::string path;
    /// The copy of the whole element: nothing but what is shipped belongs into it.
    std::string copy;
    MadeEntries entries;
};

/// All that carrying an order out makes.
struct Installation {
    /// In the order of installation.
    std::vector<MadeElement> elements;
    /// Those that elements share, wherever they lie; without "/" at their end.
    std::set<std::string> sharedFolders;
};

/// What is installed, and for whom.
struct Order {
    /// The folder of the products, without "/" at its end.
    std::string productsFolder;
    /// The makers' elements in the order of installation.
    std::vector<std::string> elements;
    /// At least one.
    std::vector<Person> persons;
};

/// The elements that are installed for the person at `index`: all for the first, and for anybody else those alone that
/// make something in a home.
std::vector<std::string> elementsFor(const Order& order, std::size_t index);

/// What carrying the order out makes: its scripts are carried out on a model. Reads the elements, no host folder. Fails
/// when something of them cannot be read, with a message for a person.
Expected<Installation> whatIsMade(const Order& order);

} // namespace corvellane
