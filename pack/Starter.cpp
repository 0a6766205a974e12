#include "pack/Starter.h"

#include "pack/Checksum.h"
#include "pack/Installer.h"
#include "pack/Reading.h"
#include "pack/Templates.h"

#include <algorithm>

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

std::string starterOf(const Ingredients& ingredients, Payload payload, const std::string& checksum)
{
    const Description& description = ingredients.description;
    std::string starter = textOf(ingredients.kit + "/starter");
    const auto put = [&starter](const std::string& place, const std::string& text) {
        starter.replace(starter.find(place), place.size(), text);
    };
    put("@TITLE@", description.name + " " + description.version);
    put("@NAME@", quoted(description.name, Quoting::shell));
    put("@PACKAGE@", quoted(description.packageName(), Quoting::shell));
    put("@VERSION@", quoted(description.version, Quoting::shell));
    put("@PAYLOAD@", payload == Payload::archive ? "archive" : "folder");
    put("@CHECKSUM@", checksum);
    // As many digits as the place has, so that the length stays; the checksum stands where it is not counted.
    const std::string length = std::to_string(starter.size() + checksum.size());
    put("length=0000000", "length=" + length + std::string(7 - length.size(), ' '));
    put("starter=''", "starter='" + checksumOf(starter) + "'");
    return starter;
}

void FolderSum::add(const std::string& path, const Item& item, const std::string& checksum)
{
    entries_.push_back(entryOf(path, item));
    if (item.kind == Item::Kind::file || item.kind == Item::Kind::text) {
        checksums_.emplace("./" + path, checksum);
    }
}

std::string FolderSum::hexadecimal() const
{
    std::vector<std::string> entries = entries_;
    std::ranges::sort(entries);
    Checksum sum;
    for (const std::string& entry : entries) {
        sum.add(entry + '\0');
    }
    for (const auto& [path, checksum] : checksums_) {
        sum.add(checksum + "  " + path + '\0');
    }
    return sum.take();
}

} // namespace corvellane::pack
