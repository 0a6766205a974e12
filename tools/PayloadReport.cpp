#include "tools/PayloadReport.h"

#include "base/PathNames.h"
#include "install/ElementKind.h"
#include "products/Discovery.h"
#include "tools/PrintableText.h"

#include <iterator>
#include <utility>

namespace corvellane {
namespace {

std::vector<std::string> describeElement(const std::string& path, const HostPaths& hosts)
{
    const ElementKind kind = kindOf(path);
    std::vector<std::string> lines{
        "kind: " + std::string(nameOf(kind)), "target folder: " + printable(hosts.*traitsOf(kind).folder)};
    switch (kind) {
    case ElementKind::lightroom:
        lines.push_back("digit: " + generationOf(path).digit);
        lines.push_back("preset identifier: " + generationOf(path).presetIdentifier);
        break;
    case ElementKind::video: {
        const std::string suffix = supersededSuffix(lastPathComponent(path));
        lines.push_back("supersedes: Glintmotion" + suffix + ".plugin, Velvetgrain" + suffix + ".plugin");
        break;
    }
    case ElementKind::photo:
        break;
    }
    return lines;
}

class Reporter {
public:
    Reporter(const Files& files, const HostPaths& hosts)
        : files_(files)
        , hosts_(hosts)
    {
    }

    void reportProductsFolder(const std::string& folder)
    {
        warn(warnAboutName(folder));
        warn(warnAboutEntries(files_, folder));
        warn(warnAboutAgreement(files_, folder));
    }

    void reportProduct(const std::string& location)
    {
        report_.lines.push_back(printable(lastPathComponent(location)));
        warn(warnAboutName(location));
        warn(warnAboutEntries(files_, location));
        const auto found = foldersIn(files_, location);
        if (found) {
            warn(warnAboutMissingElements(location, *found));
            for (const std::string& element : *found) {
                reportElement(element);
            }
        }
    }

    PayloadReport finish()
    {
        warn(warnAboutUncreatedFolder(hosts_, elements_));
        return std::move(report_);
    }

private:
    void reportElement(const std::string& path)
    {
        elements_.push_back(path);
        report_.lines.push_back("  " + printable(lastPathComponent(path)));
        for (const std::string& line : describeElement(path, hosts_)) {
            report_.lines.push_back("    " + line);
        }
        warn(warnAboutName(path));
        warn(warnAboutElement(path));
    }

    void warn(PayloadWarnings warnings) { std::ranges::move(warnings, std::back_inserter(report_.warnings)); }

    const Files& files_;
    const HostPaths& hosts_;
    std::vector<std::string> elements_;
    PayloadReport report_;
};

} // namespace

PayloadReport reportPayload(
    const Files& files, const std::string& productsFolder, const ProductSelection& selection, const HostPaths& hosts)
{
    Reporter reporter(files, hosts);
    reporter.reportProductsFolder(productsFolder);
    for (const std::string& location : selection.ticked()) {
        reporter.reportProduct(location);
    }
    return reporter.finish();
}

} // namespace corvellane
