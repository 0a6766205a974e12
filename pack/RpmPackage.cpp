#include "pack/RpmPackage.h"

#include "pack/Output.h"
#include "pack/Programs.h"
#include "pack/Reading.h"
#include "pack/Templates.h"
#include "tools/PrintableText.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <ranges>
#include <regex>
#include <set>
#include <stdexcept>
#include <vector>

namespace corvellane::pack {
namespace {

namespace fs = std::filesystem;

constexpr auto fileMode = static_cast<fs::perms>(0644);
constexpr auto folderMode = static_cast<fs::perms>(0755);

/// In a text of rpmbuild's, "%" begins a macro, and "#" at the beginning of a line a comment, unless a dash is in
/// front.
std::string literal(const std::string& text)
{
    return replaced(std::regex_replace(text, std::regex("(\n\\s*)#"), "$1- #"), {{"%", "%%"}});
}

/// What belongs to the package whole: its own folders, and in those of the system its own files.
std::string filesLinesOf(const Contents& files, const std::string& package)
{
    std::set<std::string> lines{"\"/usr/lib/" + package + "\"", "\"/Library\""};
    for (const auto& [path, item] : files.items()) {
        const bool isAmongOthers = path.starts_with("usr/share/") || path.starts_with("usr/bin/");
        if (isAmongOthers && item.kind != Item::Kind::folder) {
            lines.insert((path.starts_with("usr/share/licenses/") ? "%license " : "") + ("\"/" + path) + "\"");
        }
    }
    std::string result;
    for (const std::string& line : lines) {
        result += line + "\n";
    }
    return result;
}

void stage(const Item& item, const fs::path& path, std::int64_t epoch)
{
    if (item.kind == Item::Kind::link) {
        fs::create_symlink(item.from, path);
        return;
    }
    if (item.kind == Item::Kind::folder) {
        fs::create_directory(path);
    } else if (item.kind == Item::Kind::text) {
        writeText(path, item.from);
    } else {
        fs::copy_file(item.from, path);
    }
    const bool isSearched = item.kind == Item::Kind::folder || item.executable;
    fs::permissions(path, isSearched ? folderMode : fileMode);
    fs::last_write_time(path, std::chrono::file_clock::from_sys(std::chrono::sys_seconds(std::chrono::seconds(epoch))));
}

/// From the innermost outwards, as what is put into a folder changes its time.
void stage(const Contents& files, const fs::path& root, std::int64_t epoch)
{
    fs::create_directory(root);
    for (const auto& [path, item] : files.items()) {
        if (item.kind == Item::Kind::folder) {
            fs::create_directory(root / path);
        }
    }
    for (const auto& [path, item] : std::views::reverse(files.items())) {
        stage(item, root / path, epoch);
    }
}

/// Another name for a folder, of letters that mean nothing to a shell, which rpmbuild's steps go through.
class PlainName {
public:
    explicit PlainName(const std::string& folder)
    {
        if (mkdtemp(place_.data()) == nullptr) {
            throw std::runtime_error("“" + place_ + "” cannot be made");
        }
        fs::create_directory_symlink(folder, path());
    }
    PlainName(const PlainName&) = delete;
    PlainName& operator=(const PlainName&) = delete;
    ~PlainName()
    {
        std::error_code error;
        fs::remove_all(place_, error);
    }

    std::string path() const { return place_ + "/rpm"; }

private:
    std::string place_ = "/tmp/corvellane-pack-XXXXXX";
};

} // namespace

std::string rpmNameOf(const Ingredients& ingredients)
{
    return ingredients.description.packageName() + "-" + ingredients.description.version + "-1."
        + machineOf(ingredients.kit) + ".rpm";
}

Contents rpmFilesOf(const Ingredients& ingredients)
{
    Contents contents = systemFilesOf(ingredients);
    for (const auto& [path, item] : contents.items()) {
        if (path.find('\n') != std::string::npos) {
            throw std::runtime_error("an rpm cannot hold “" + printable(path) + "”: there is a line feed in its name");
        }
    }
    contents.addFile(
        "usr/share/licenses/" + ingredients.description.packageName() + "/copyright", ingredients.kit + "/copyright");
    return contents;
}

// The libraries are asked for by their own names, which rpmbuild reads from the programs, and which are the same on all
// systems. The packages named here bring what is not linked: Qt's displays, and the programs and pictures of the
// desktop.
std::string rpmSpecOf(const Ingredients& ingredients, const Contents& files)
{
    const Description& description = ingredients.description;
    const std::string package = description.packageName();
    std::string summary = summaryOf(description);
    summary.front() = 'W';
    return "%global __requires_exclude_from ^/usr/lib/" + package + "/Resources/\n"
        + "%global __provides_exclude_from ^/\n"
          "Name: "
        + package + "\nVersion: " + description.version + "\nRelease: 1\nSummary: " + literal(summary)
        + "\nLicense: MIT AND LicenseRef-Agreement\nURL: " + literal(description.homepage)
        + "\nVendor: " + literal(description.publisher) + "\nPackager: " + literal(description.contact)
        + "\nRequires: (qt6-qtbase-gui or libQt6Gui6)\nRequires: /usr/bin/pkexec\nRequires: hicolor-icon-theme\n"
          "Recommends: (qt6-qtwayland or qt6-wayland)\nRecommends: (liberation-sans-fonts or liberation-fonts)\n"
          "\n%description\n"
        + literal(inWords(description)) + "\n%preun\n[ \"$1\" = 0 ] || exit 0\n"
        + literal(wordsBeforeRemoval(description)) + "\n%files\n%defattr(-,root,root,-)\n"
        + filesLinesOf(files, package) + "\n%changelog\n* " + rpmDateOf(ingredients.epoch) + " "
        + literal(description.contact) + " - " + description.version + "-1\n- "
        + literal(indented(description.notes, "  ")) + "\n";
}

std::string makeRpmPackage(const Ingredients& ingredients, const Contents& files, const std::string& folder)
{
    writeText(folder + "/package.spec", rpmSpecOf(ingredients, files));
    stage(files, folder + "/root", ingredients.epoch);
    const PlainName name(folder);
    const std::string& plain = name.path();
    std::vector<std::string> words{pathOf("rpmbuild", "rpm"), "-bb", "--quiet", "--noclean", "--target",
        machineOf(ingredients.kit), "--buildroot", plain + "/root"};
    // What is packed stays as it is, and where it is; a name is bytes.
    for (const std::string& macro :
        {"_topdir " + plain, "_rpmdir " + plain, "_tmppath " + plain, "_rpmfilename " + rpmNameOf(ingredients),
            std::string("_buildhost localhost"), std::string("use_source_date_epoch_as_buildtime 1"),
            std::string("clamp_mtime_to_source_date_epoch 1"), std::string("source_date_epoch_from_changelog 0"),
            std::string("_binary_payload w3T0.zstdio"), std::string("__spec_install_pre %{nil}"),
            std::string("__os_install_post %{nil}"), std::string("debug_package %{nil}"),
            std::string("_build_id_links none"), std::string("_invalid_encoding_terminates_build 0")}) {
        words.insert(words.end(), {"--define", macro});
    }
    words.push_back(plain + "/package.spec");
    // Its home is the folder: a person's own macros are not the package's.
    outputOf(words, {"HOME=" + plain, "SOURCE_DATE_EPOCH=" + std::to_string(ingredients.epoch)});
    return folder + "/" + rpmNameOf(ingredients);
}

} // namespace corvellane::pack
