#include "pack/Starter.h"

#include "pack/Checksum.h"
#include "pack/Installer.h"
#include "pack/Reading.h"
#include "pack/Templates.h"

#include <algorithm>
#include <utility>

namespace corvellane::pack {
namespace {

std::string entryOf(const std::string& path, const Item& item)
{
    switch (item.kind) {
    case Item::Kind::folder:
        return "d" + path;
    case Item::Kind::link:
        return "l" + path + "//" + item.from;
    case Item::Kind::file:
    case Item::Kind::text:
        break;
    }
    return (item.executable ? "x" : "f") + path;
}

} // namespace

std::string starterOf(const Ingredients& ingredients, Payload payload, const std::string& folderSum)
{
    const Description& description = ingredients.description;
    std::string starter = replaced(textOf(ingredients.kit + "/starter"),
        {{"@TITLE@", description.name + " " + description.version},
            {"@NAME@", quoted(description.name, Quoting::shell)},
            {"@PACKAGE@", quoted(description.packageName(), Quoting::shell)},
            {"@VERSION@", quoted(description.version, Quoting::shell)},
            {"@PAYLOAD@", payload == Payload::archive ? "archive" : "folder"}, {"@CHECKSUM@", folderSum}});
    // Whole lines, which nothing that was put in is.
    const auto putLine = [&starter](const std::string& place, const std::string& line) {
        starter.replace(starter.find("\n" + place + "\n") + 1, place.size(), line);
    };
    // As many digits as the place has, so that the length stays; its own checksum is still to come.
    const std::string length = std::to_string(starter.size() + 64);
    putLine("length=0000000", "length=" + length + std::string(7 - length.size(), ' '));
    putLine("starter=''", "starter='" + checksumOf(starter) + "'");
    return starter;
}

void FolderSum::add(const std::string& path, const Item& item, std::future<std::string> checksum)
{
    entries_.push_back(entryOf(path, item));
    if (item.kind == Item::Kind::file || item.kind == Item::Kind::text) {
        checksums_.emplace("./" + path, std::move(checksum));
    }
}

std::string FolderSum::hexadecimal()
{
    std::ranges::sort(entries_);
    Checksum sum;
    for (const std::string& entry : entries_) {
        sum.add(entry + '\0');
    }
    for (auto& [path, checksum] : checksums_) {
        sum.add(checksum.get() + "  " + path + '\0');
    }
    return sum.take();
}

} // namespace corvellane::pack
