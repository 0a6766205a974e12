#include "tools/PayloadFindings.h"

#include "agreement/Document.h"
#include "base/PathNames.h"
#include "install/ElementKind.h"
#include "install/ScriptEscapes.h"
#include "tools/LogoColours.h"
#include "tools/PrintableText.h"
#include "tools/UnicodeNames.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <iterator>

namespace corvellane {
namespace {

namespace fs = std::filesystem;

/// More than any picture has; in bytes.
constexpr std::size_t largestPicture = std::size_t{16} << 20U;

void append(Findings& findings, Findings more)
{
    std::ranges::move(more, std::back_inserter(findings));
}

Findings inspectKind(const std::string& path)
{
    const std::string name(lastPathComponent(path));
    const ElementKind kind = kindOf(path);
    if (kind != kindOf(name)) {
        return {{"kind-by-folder", path,
            "is a " + std::string(nameOf(kind)) + " element only by the name of a folder above it"}};
    }
    const auto digit = generationOf(path).digit;
    if (kind == ElementKind::lightroom && digit != generationOf(name).digit) {
        return {{"generation-by-folder", path,
            "is of generation " + std::string(digit) + " only by the name of a folder above it"}};
    }
    return {};
}

/// A word that would make the element another kind, if capitals did not count.
Findings inspectCapitals(const std::string& path)
{
    const auto product = path.rfind('/', path.rfind('/') - 1);
    const std::string names = withoutCapitals(path.substr(product + 1));
    for (const ElementKind kind : {ElementKind::lightroom, ElementKind::video}) {
        const std::string word(traitsOf(kind).word);
        if (kindOf(path) == kind) {
            return {};
        }
        if (names.find(withoutCapitals(word)) != std::string::npos) {
            return {{"kind-capitals", path,
                "is a " + std::string(nameOf(kindOf(path))) + " element: only “" + word
                    + "”, with these capitals, makes it a " + std::string(nameOf(kind)) + " element"}};
        }
    }
    return {};
}

/// The last word of the name, without the extension.
std::string_view lastWord(std::string_view name)
{
    const std::string_view stem = name.substr(0, name.rfind('.'));
    return stem.substr(stem.rfind(' ') + 1);
}

Findings inspectVideoName(const std::string& path)
{
    const std::string_view name = lastPathComponent(path);
    if (kindOf(path) != ElementKind::video || supersededSuffix(name).empty() || lastWord(name) == "2") {
        return {};
    }
    return {{"superseding", path, "supersedes the bundles of generation 2, because of the “2” inside its name"}};
}

Findings inspectHidden(const std::string& path, const std::string& taken)
{
    if (!lastPathComponent(path).starts_with('.') || isLeftover(lastPathComponent(path))) {
        return {};
    }
    return {{"hidden", path, "is hidden, and taken for " + taken + " all the same"}};
}

/// Why the picture would be one black block, if so.
std::string whyABlock(std::string_view logo)
{
    if (isPng(logo)) {
        return hasTransparency(logo) ? "" : "has no transparent parts";
    }
    const std::vector<std::string> colours = coloursOf(logo);
    return colours.size() < 2 ? ""
                              : "has more than one colour, " + colours[0] + " and " + colours[1] + " for instance,";
}

/// The wizard looks for the drawing first.
Findings inspectLogo(const Files& files, const std::string& folder)
{
    std::error_code error;
    const std::string drawing = folder + "/Logo.svg";
    const std::string pixels = folder + "/Logo.png";
    const bool isDrawn = fs::exists(drawing, error) || !fs::exists(pixels, error);
    const std::string& path = isDrawn ? drawing : pixels;
    const auto logo = files.read(path, largestPicture);
    if (!logo) {
        return {{"logo", path, "is no logo to show: " + logo.error().message}};
    }
    if (!isDrawn && !isPng(*logo)) {
        return {{"logo", path, "is no logo to show: it is not a picture in PNG"}};
    }
    const std::string why = whyABlock(*logo);
    return why.empty() ? Findings() : Findings{{"logo-colours", path, why + " and is drawn in black all over"}};
}

/// It may be left out, and the wizard's own shows.
Findings inspectIcon(const Files& files, const std::string& folder)
{
    std::error_code error;
    const std::string path = folder + "/Icon.svg";
    if (!fs::exists(path, error)) {
        return {};
    }
    const auto icon = files.read(path, largestPicture);
    if (!icon) {
        return {{"icon", path, "is no icon to show: " + icon.error().message}};
    }
    return coloursOf(*icon).empty() ? Findings{{"icon", path, "is no icon to show: it is not a picture in SVG"}}
                                    : Findings();
}

} // namespace

bool isLeftover(std::string_view name)
{
    constexpr auto names = std::to_array<std::string_view>(
        {".DS_Store", ".git", ".gitignore", ".hg", ".svn", "Thumbs.db", "__MACOSX", "desktop.ini"});
    return std::ranges::find(names, name) != names.end() || name.starts_with("._") || name.ends_with('~');
}

Findings inspectEntries(const Files& files, const std::string& folder)
{
    const auto entries = files.list(folder);
    if (!entries) {
        return {{"unreadable", folder, "cannot be read: " + entries.error().message}};
    }
    Findings findings;
    for (const FolderEntry& entry : *entries) {
        std::error_code error;
        if (fs::is_symlink(entry.path, error)) {
            findings.push_back({"ignored-link", entry.path, "is a link and will be ignored"});
        } else if (!entry.isFolder.value_or(false)) {
            findings.push_back({"ignored", entry.path, "is no folder and will be ignored"});
        }
    }
    return findings;
}

Findings inspectProduct(const std::string& product, const std::vector<std::string>& elements)
{
    Findings findings = inspectName(product);
    append(findings, inspectHidden(product, "a product"));
    if (elements.empty()) {
        findings.push_back({"empty-product", product, "holds no folder and installs nothing"});
    }
    return findings;
}

Findings inspectElement(const std::string& path)
{
    Findings findings = inspectName(path);
    append(findings, inspectHidden(path, "an element"));
    append(findings, inspectKind(path));
    append(findings, inspectCapitals(path));
    append(findings, inspectVideoName(path));
    return findings;
}

Findings inspectName(const std::string& path)
{
    const std::string name(lastPathComponent(path));
    if (asEchoedLuaString(name) == name) {
        return {};
    }
    return {{"escaped", path, "has a name with characters that the script has to escape"}};
}

Findings inspectResources(const Files& files, const std::string& productsFolder)
{
    const std::string folder = fs::path(productsFolder).parent_path();
    const std::string path = folder + "/CorvellaneEULA.rtf";
    const auto agreement = readAgreement(files, path);
    Findings findings;
    if (!agreement) {
        findings.push_back({"agreement", path, "is no agreement to show: " + agreement.error().message});
    }
    append(findings, inspectLogo(files, folder));
    append(findings, inspectIcon(files, folder));
    return findings;
}

} // namespace corvellane
