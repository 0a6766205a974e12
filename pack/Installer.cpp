#include "pack/Installer.h"

#include "pack/Templates.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace corvellane::pack {
namespace {

namespace fs = std::filesystem;

constexpr auto identifierOfSamples = "com.corvellane.PluginInstaller";

std::string lineOf(const std::string& file)
{
    std::string text = textOf(file);
    return text.substr(0, text.find('\n'));
}

std::string base64(const std::string& bytes)
{
    constexpr auto letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string result;
    for (std::size_t begin = 0; begin < bytes.size(); begin += 3) {
        unsigned group = 0;
        for (std::size_t at = begin; at < begin + 3; ++at) {
            group = group << 8U | (at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0U);
        }
        for (std::size_t digit = 0; digit < 4; ++digit) {
            result += digit <= bytes.size() - begin ? letters[group >> (18U - 6U * digit) & 63U] : '=';
        }
    }
    return result;
}

/// The wizard reads its logo as SVG, and gives it the place of 180 by 40 points.
std::string logoOf(const std::string& maker)
{
    if (fs::exists(maker + "/Logo.svg")) {
        return textOf(maker + "/Logo.svg");
    }
    return R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" viewBox="0 0 180 40">)"
           R"(<image width="180" height="40" xlink:href="data:image/png;base64,)"
        + base64(textOf(maker + "/Logo.png")) + "\"/></svg>\n";
}

void addResources(Contents& contents, const std::string& path, const std::string& maker)
{
    contents.addTree(path + "/Products", maker + "/Products");
    contents.addFile(path + "/CorvellaneEULA.rtf", maker + "/CorvellaneEULA.rtf");
    contents.addText(path + "/Logo.svg", logoOf(maker));
}

/// The folders for links to elements, as the host applications would make them.
void addHostFolders(Contents& contents)
{
    for (const char* const links : {"Common/Plug-ins/7.0/MediaCore", "Plug-Ins/CC"}) {
        contents.addFolder(std::string("Library/Application Support/Adobe/") + links + "/Corvellane");
    }
}

std::string changelogOf(const Ingredients& ingredients)
{
    const Description& description = ingredients.description;
    std::string notes = description.notes;
    for (std::size_t end = notes.find('\n'); end != std::string::npos; end = notes.find('\n', end + 1)) {
        notes.insert(end + 1, "    ");
    }
    return description.packageName() + " (" + description.version + ") stable; urgency=medium\n\n  * " + notes
        + "\n\n -- " + description.contact + "  " + longDateOf(ingredients.epoch) + "\n";
}

} // namespace

std::string textOf(const std::string& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(stream), {}};
    if (!stream) {
        throw std::runtime_error("“" + file + "” cannot be read");
    }
    return text;
}

std::string machineOf(const std::string& kit)
{
    return lineOf(kit + "/architecture");
}

std::string debianMachineOf(const std::string& kit)
{
    return lineOf(kit + "/debian/architecture");
}

std::vector<std::string> whatIsMissing(const std::string& maker)
{
    std::vector<std::string> missing;
    if (!fs::is_directory(maker + "/Products")) {
        missing.emplace_back("the folder “Products” is missing: a folder for each product, its elements in it");
    }
    if (!fs::is_regular_file(maker + "/CorvellaneEULA.rtf")) {
        missing.emplace_back("the file “CorvellaneEULA.rtf” is missing: the licence agreement, as rich text");
    }
    if (!fs::is_regular_file(maker + "/Logo.svg") && !fs::is_regular_file(maker + "/Logo.png")) {
        missing.emplace_back("the file “Logo.svg” or “Logo.png” is missing: the logo, 180 by 40 points, of one colour");
    }
    return missing;
}

Contents bundleOf(const Ingredients& ingredients)
{
    Contents contents;
    for (const fs::directory_entry& entry : fs::directory_iterator(ingredients.kit + "/bundle")) {
        contents.addTree(entry.path().filename().native(), entry.path().native());
    }
    addResources(contents, "Resources", ingredients.maker);
    return contents;
}

Contents debianFilesOf(const Ingredients& ingredients)
{
    const Description& description = ingredients.description;
    const std::string package = description.packageName();
    const std::string programs = "usr/lib/" + package;
    const std::string documents = "usr/share/doc/" + package;
    Contents contents;
    contents.addTree(programs, ingredients.kit + "/system");
    addResources(contents, programs + "/Resources", ingredients.maker);
    addHostFolders(contents);
    const auto addDesktopText = [&](const std::string& folder, const std::string& ending, Quoting quoting) {
        const std::string sample = textOf(ingredients.kit + "/desktop/" + identifierOfSamples + ending);
        contents.addText("usr/share/" + folder + "/" + description.identifier + ending,
            retold(sample, description, ingredients.epoch, quoting));
    };
    addDesktopText("applications", ".desktop", Quoting::none);
    addDesktopText("metainfo", ".metainfo.xml", Quoting::xml);
    addDesktopText("polkit-1/actions", ".policy", Quoting::xml);
    contents.addFile("usr/share/icons/hicolor/scalable/apps/" + description.identifier + ".svg",
        ingredients.kit + "/desktop/" + identifierOfSamples + ".svg");
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
            + debianMachineOf(ingredients.kit) + "\nMaintainer: " + description.contact + "\nInstalled-Size: "
            + std::to_string(files.size() / 1024 + 1) + "\nDepends: " + textOf(ingredients.kit + "/debian/depends")
            + "\nRecommends: fonts-liberation, polkit-1-auth-agent, qt6-wayland\nSection: graphics\nPriority: optional"
            + "\nHomepage: " + description.homepage + "\nDescription: wizard that installs plug-ins of "
            + description.publisher + "\n " + description.name
            + " shows the licence agreement, lets people choose\n the products, asks once for an administrator's"
              " password and shows the full log\n when something goes wrong.\n");
    return contents;
}

std::string starterOf(const Ingredients& ingredients, const std::string& checksum,
    const std::function<std::string(const std::string&)>& checksumOf)
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
    put("@ARCHIVE@", checksum);
    // As many digits as the place has, so that the length stays; the checksum stands where it is not counted.
    const std::string ownChecksum(64, ' ');
    const std::string length = std::to_string(starter.size() + ownChecksum.size());
    put("length=0000000", "length=" + length + std::string(7 - length.size(), ' '));
    put("starter=''", "starter='" + checksumOf(starter) + "'");
    return starter;
}

} // namespace corvellane::pack
