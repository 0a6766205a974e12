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
    std::string starter = textOf(ingredients.kit + "/starter");
    const auto put = [&starter](const std::string& place, const std::string& text) {
        starter.replace(starter.find(place), place.size(), text);
    };
    put("@TITLE@", description.name + " " + description.version);
    put("@NAME@", quoted(description.name, Quoting::shell));
    put("@PACKAGE@", quoted(description.packageName(), Quoting::shell));
    put("@VERSION@", quoted(description.version, Quoting::shell));
    put("@PAYLOAD@", payload == Payload::archive ? "archive" : "folder");
    put("@CHECKSUM@", folderSum);
    // As many digits as the place has, so that the length stays; its own checksum is still to come.
    const std::string length = std::to_string(starter.size() + 64);
    put("length=0000000", "length=" + length + std::string(7 - length.size(), ' '));
    put("starter=''", "starter='" + checksumOf(starter) + "'");
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
