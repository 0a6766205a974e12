#include "tools/PayloadReport.h"

#include "base/PathNames.h"
#include "base/SizeInWords.h"
#include "install/InstallScript.h"
#include "products/Discovery.h"
#include "tools/ModelInspection.h"
#include "tools/ModelRun.h"
#include "tools/PayloadFindings.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <tuple>
#include <utility>

namespace corvellane {
namespace {

namespace fs = std::filesystem;

ElementReport describeElement(const ModelTree& tree, const std::string& path, const HostPaths& hosts)
{
    ElementReport element;
    element.path = path;
    element.kind = kindOf(path);
    element.target = hosts.*traitsOf(element.kind).folder;
    switch (element.kind) {
    case ElementKind::lightroom:
        element.generation = generationOf(path);
        break;
    case ElementKind::video: {
        const std::string suffix = supersededSuffix(lastPathComponent(path));
        element.supersedes = {"Glintmotion" + suffix + ".plugin", "Velvetgrain" + suffix + ".plugin"};
        break;
    }
    case ElementKind::photo:
        break;
    }
    for (const auto& [inside, entry] : tree.below(path)) {
        element.files += entry.kind == ModelEntry::Kind::file ? 1 : 0;
        element.size += entry.size;
    }
    return element;
}

class Reporter {
public:
    Reporter(const Files& files, std::string productsFolder, const HostPaths& hosts)
        : files_(files)
        , productsFolder_(std::move(productsFolder))
        , hosts_(hosts)
    {
    }

    void reportProductsFolder(bool isEmpty)
    {
        readEntryIntoModel(tree_, productsFolder_);
        add(inspectName(productsFolder_));
        add(inspectEntries(files_, productsFolder_));
        add(inspectResources(files_, productsFolder_));
        if (isEmpty) {
            add({{"no-products", productsFolder_, "holds no product, and the wizard stops at “No products found”"}});
        }
    }

    void reportProduct(const std::string& location)
    {
        readIntoModel(tree_, location);
        add(inspectEntries(files_, location));
        const auto elements = foldersIn(files_, location);
        ProductReport& product = report_.products.emplace_back(ProductReport{location, {}});
        if (elements) {
            add(inspectProduct(location, *elements));
            for (const std::string& path : *elements) {
                elements_.push_back(path);
                product.elements.push_back(describeElement(tree_, path, hosts_));
                add(inspectElement(path));
            }
        }
    }

    PayloadReport finish(const RoomAt& room)
    {
        add(inspectPayload(tree_, productsFolder_, elements_));
        addHostFolders(tree_, hosts_);
        add(runOnModel(tree_, composeInstallScript(hosts_, elements_), productsFolder_, hosts_));
        for (const std::string& element : elements_) {
            add(inspectInstalled(tree_, hosts_.application + std::string(lastPathComponent(element))));
        }
        add(inspectNames(tree_, withoutEnd(hosts_.application)));
        add(inspectRoom(room));
        sortFindings();
        return std::move(report_);
    }

private:
    Findings inspectRoom(const RoomAt& room) const
    {
        std::uintmax_t needed = 0;
        for (const auto& [path, entry] : tree_.below(withoutEnd(hosts_.application))) {
            needed += entry.size;
        }
        const auto free = room(hosts_.application);
        if (!free || needed <= *free) {
            return {};
        }
        return {{"no-room", hosts_.application,
            "has too little room on this machine: " + sizeInWords(needed) + " are needed, and " + sizeInWords(*free)
                + " are free"}};
    }

    void add(Findings findings) { std::ranges::move(findings, std::back_inserter(report_.findings)); }

    /// What is found on two ways is told once.
    void sortFindings()
    {
        const auto key = [](const Finding& finding) {
            return std::tuple(finding.code.severity(), finding.path, finding.code.name(), finding.text);
        };
        Findings& findings = report_.findings;
        std::ranges::sort(findings, {}, key);
        const auto repeated = std::ranges::unique(findings, {}, key);
        findings.erase(repeated.begin(), repeated.end());
    }

    const Files& files_;
    const std::string productsFolder_;
    const HostPaths& hosts_;
    ModelTree tree_;
    std::vector<std::string> elements_;
    PayloadReport report_;
};

} // namespace

std::optional<std::uintmax_t> roomAt(const std::string& folder)
{
    fs::path there = folder;
    std::error_code error;
    while (!fs::exists(there, error) && there.has_relative_path()) {
        there = there.parent_path();
    }
    const fs::space_info space = fs::space(there, error);
    return error ? std::nullopt : std::optional(space.available);
}

PayloadReport reportPayload(const Files& files, const std::string& productsFolder, const ProductSelection& selection,
    const HostPaths& hosts, const RoomAt& room)
{
    Reporter reporter(files, productsFolder, hosts);
    reporter.reportProductsFolder(selection.empty());
    for (const std::string& location : selection.ticked()) {
        reporter.reportProduct(location);
    }
    return reporter.finish(room);
}

} // namespace corvellane
