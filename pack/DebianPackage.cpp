#include "pack/DebianPackage.h"

#include "pack/Reading.h"
#include "pack/Templates.h"

#include <array>
#include <cstdio>

namespace corvellane::pack {
namespace {

std::string architectureOf(const Ingredients& ingredients)
{
    return lineOf(ingredients.kit + "/debian/architecture");
}

std::string changelogOf(const Ingredients& ingredients)
{
    const Description& description = ingredients.description;
    return description.packageName() + " (" + description.version + ") stable; urgency=medium\n\n  * "
        + indented(description.notes, "    ") + "\n\n -- " + description.contact + "  " + longDateOf(ingredients.epoch)
        + "\n";
}

/// In front of a member of the archive (ar(5)).
std::string memberHeader(const std::string& name, std::int64_t epoch, std::uintmax_t size)
{
    std::array<char, 61> header{};
    std::snprintf(header.data(), header.size(), "%-16s%-12lld%-6d%-6d%-8o%-10llu`\n", name.c_str(),
        static_cast<long long>(epoch), 0, 0, 0100644, static_cast<unsigned long long>(size));
    return header.data();
}

/// Its size is known when it has been written.
template <typename Write>
void addMember(Output& output, const std::string& name, std::int64_t epoch, const Write& write)
{
    const std::uintmax_t begin = output.size();
    output.write(memberHeader(name, epoch, 0));
    const std::uintmax_t dataBegin = output.size();
    write();
    const std::uintmax_t size = output.size() - dataBegin;
    output.write(size % 2 == 0 ? "" : "\n");
    output.overwrite(begin, memberHeader(name, epoch, size));
}

} // namespace

std::string debianNameOf(const Ingredients& ingredients)
{
    return ingredients.description.packageName() + "_" + ingredients.description.version + "_"
        + architectureOf(ingredients) + ".deb";
}

Contents debianFilesOf(const Ingredients& ingredients)
{
    const std::string package = ingredients.description.packageName();
    const std::string documents = "usr/share/doc/" + package;
    Contents contents = systemFilesOf(ingredients);
    contents.addFile(documents + "/copyright", ingredients.kit + "/copyright");
    contents.addText(documents + "/changelog.gz", gzipped(changelogOf(ingredients)));
    contents.addText("usr/share/lintian/overrides/" + package,
        "# The plug-ins' hosts look for them in these folders.\n" + package
            + ": non-standard-toplevel-dir [Library/]\n");
    return contents;
}

Contents debianControlOf(const Ingredients& ingredients, const Contents& files)
{
    const Description& description = ingredients.description;
    Contents contents;
    contents.addText("control",
        "Package: " + description.packageName() + "\nVersion: " + description.version + "\nArchitecture: "
            + architectureOf(ingredients) + "\nMaintainer: " + description.contact + "\nInstalled-Size: "
            + std::to_string(files.size() / 1024 + 1) + "\nDepends: " + textOf(ingredients.kit + "/debian/depends")
            + "\nRecommends: fonts-liberation, polkit-1-auth-agent, qt6-wayland\nSection: graphics\nPriority: optional"
            + "\nHomepage: " + description.homepage + "\nDescription: " + summaryOf(description) + "\n "
            + indented(inWords(description), " "));
    contents.addText(
        "prerm", "#!/bin/sh\nset -e\n[ \"$1\" = remove ] || exit 0\n" + wordsBeforeRemoval(description), true);
    return contents;
}

void writeDebianPackage(Output& output, const Ingredients& ingredients, const Contents& files, const Blocks& seen)
{
    const std::int64_t epoch = ingredients.epoch;
    const Bytes take = [&](std::string_view bytes) { output.write(bytes); };
    output.write("!<arch>\n");
    addMember(output, "debian-binary", epoch, [&] { output.write("2.0\n"); });
    addMember(output, "control.tar.zst", epoch,
        [&] { writeArchive(take, debianControlOf(ingredients, files), "./", epoch, [](const Block& /*bytes*/) { }); });
    addMember(output, "data.tar.zst", epoch, [&] { writeArchive(take, files, "./", epoch, seen); });
}

} // namespace corvellane::pack
