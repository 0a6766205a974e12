#include "pack/Installer.h"

#include "pack/Archive.h"
#include "pack/Reading.h"
#include "pack/Starter.h"
#include "pack/Templates.h"

#include <filesystem>

namespace corvellane::pack {
namespace {

namespace fs = std::filesystem;

constexpr auto identifierOfSamples = "com.corvellane.PluginInstaller";
constexpr auto iconName = "/Icon.svg";

void addResources(Contents& contents, const std::string& path, const Ingredients& ingredients)
{
    const std::string& maker = ingredients.maker;
    contents.addTree(path + "/Products", maker + "/Products");
    contents.addFile(path + "/CorvellaneEULA.rtf", maker + "/CorvellaneEULA.rtf");
    const std::string logo = fs::exists(maker + "/Logo.svg") ? "/Logo.svg" : "/Logo.png";
    contents.addFile(path + logo, maker + logo);
    if (fs::exists(maker + iconName)) {
        contents.addFile(path + iconName, maker + iconName);
    }
    // What the wizard's window is called by, so that the desktop finds its entry and its icon.
    contents.addText(path + "/Identifier.txt", ingredients.description.identifier + "\n");
}

/// The folders for links to elements, as the host applications would make them.
void addHostFolders(Contents& contents)
{
    for (const char* const links : {"Common/Plug-ins/7.0/MediaCore", "Plug-Ins/CC"}) {
        contents.addFolder(std::string("Library/Application Support/Adobe/") + links + "/Corvellane");
    }
}

/// Beside the file to click.
std::string readMeOf(const Ingredients& ingredients)
{
    const Description& description = ingredients.description;
    const std::string folder = "/opt/" + description.packageName();
    return description.name + " " + description.version + "\n\nOpen “" + starterName
        + "” to install the plug-ins, or run it in a terminal. It asks once for an administrator's\npassword, copies"
          " this folder to "
        + folder
        + ", where only the administrator can change\nit, and opens the installer from there. Where the administrator"
          " has unpacked this folder, it opens\nthe installer at once.\n\n    ./"
        + starterName + " --check     tells whether this folder is as it was made\n    ./" + starterName
        + " --remove    removes " + folder + "; plug-ins that were installed stay\n\nWhat is new: "
        + indented(description.notes, "  ") + "\n\n" + description.homepage + "\n" + description.contact + "\n";
}

} // namespace

std::string machineOf(const std::string& kit)
{
    return lineOf(kit + "/architecture");
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
    addResources(contents, "Resources", ingredients);
    contents.addText("ReadMe.txt", readMeOf(ingredients));
    return contents;
}

Contents systemFilesOf(const Ingredients& ingredients)
{
    const Description& description = ingredients.description;
    const std::string programs = "usr/lib/" + description.packageName();
    Contents contents;
    contents.addTree(programs, ingredients.kit + "/system");
    addResources(contents, programs + "/Resources", ingredients);
    addHostFolders(contents);
    const auto addDesktopText = [&](const std::string& folder, const std::string& ending, Quoting quoting) {
        const std::string sample = textOf(ingredients.kit + "/desktop/" + identifierOfSamples + ending);
        contents.addText("usr/share/" + folder + "/" + description.identifier + ending,
            retold(sample, description, ingredients.epoch, quoting));
    };
    addDesktopText("applications", ".desktop", Quoting::desktop);
    addDesktopText("metainfo", ".metainfo.xml", Quoting::xml);
    addDesktopText("polkit-1/actions", ".policy", Quoting::xml);
    contents.addLink(
        "usr/bin/" + commandOf(description), "../lib/" + description.packageName() + "/bin/corvellane-cli");
    const std::string manual = textOf(ingredients.kit + "/desktop/corvellane-cli.1");
    contents.addText("usr/share/man/man1/" + commandOf(description) + ".1.gz",
        gzipped(retold(manual, description, ingredients.epoch, Quoting::manual)));
    const std::string icon = ingredients.maker + iconName;
    contents.addFile("usr/share/icons/hicolor/scalable/apps/" + description.identifier + ".svg",
        fs::exists(icon) ? icon : ingredients.kit + "/desktop/" + identifierOfSamples + ".svg");
    return contents;
}

std::string summaryOf(const Description& description)
{
    return "wizard that installs plug-ins of " + description.publisher;
}

std::string inWords(const Description& description)
{
    return description.name
        + "\nshows the licence agreement, lets people choose the products, asks once for an\nadministrator's password "
          "and shows the full log when something goes wrong.\n";
}

std::string indented(std::string text, const std::string& indent)
{
    for (std::size_t end = text.find('\n'); end != std::string::npos && end + 1 < text.size();
        end = text.find('\n', end + 1)) {
        text.insert(end + 1, indent);
    }
    return text;
}

} // namespace corvellane::pack
