#include "tools/ReportForms.h"

#include "base/Enumerators.h"
#include "base/PathNames.h"
#include "base/SizeInWords.h"
#include "tools/Colours.h"
#include "tools/PrintableText.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <iterator>

namespace corvellane {
namespace {

using Json = nlohmann::ordered_json;

constexpr int jsonFormat = 1;

constexpr Colour colourOf(Severity severity)
{
    switch (severity) {
    case Severity::error:
        return Colour::red;
    case Severity::warning:
        return Colour::yellow;
    case Severity::note:
        return Colour::cyan;
    }
    return {};
}

std::string countOf(std::uintmax_t count, std::string_view one)
{
    return std::to_string(count) + " " + std::string(one) + (count == 1 ? "" : "s");
}

std::uintmax_t countOf(const PayloadReport& report, Severity severity)
{
    return static_cast<std::uintmax_t>(
        std::ranges::count(report.findings, severity, [](const Finding& finding) { return finding.code.severity(); }));
}

std::string nameOfPath(const std::string& path)
{
    return printable(lastPathComponent(path));
}

void addElement(std::vector<std::string>& lines, const ElementReport& element)
{
    lines.push_back("  " + nameOfPath(element.path));
    lines.push_back("    kind: " + std::string(nameOf(element.kind)));
    lines.push_back("    target folder: " + printable(element.target));
    if (element.generation) {
        lines.push_back("    digit: " + element.generation->digit);
        lines.push_back("    preset identifier: " + element.generation->presetIdentifier);
    }
    if (!element.supersedes.empty()) {
        lines.push_back("    supersedes: " + element.supersedes.front() + ", " + element.supersedes.back());
    }
    lines.push_back("    size: " + sizeInWords(element.size) + " in " + countOf(element.files, "file"));
}

std::string lineOf(const Finding& finding, bool isColoured)
{
    const Severity severity = finding.code.severity();
    return coloured(nameOf(severity), colourOf(severity), isColoured) + ": " + printable(finding.path) + ": "
        + printable(finding.text) + " [" + std::string(finding.code.name()) + "]";
}

Json elementJson(const ElementReport& element)
{
    Json json;
    json["name"] = nameOfPath(element.path);
    json["path"] = printable(element.path);
    json["kind"] = nameOf(element.kind);
    json["target"] = printable(element.target);
    if (element.generation) {
        json["generation"] = element.generation->digit;
        json["presetIdentifier"] = element.generation->presetIdentifier;
    }
    json["supersedes"] = element.supersedes;
    json["files"] = element.files;
    json["size"] = element.size;
    return json;
}

Json productJson(const ProductReport& product)
{
    Json json;
    json["name"] = nameOfPath(product.path);
    json["path"] = printable(product.path);
    Json& elements = json["elements"] = Json::array();
    for (const ElementReport& element : product.elements) {
        elements.push_back(elementJson(element));
    }
    return json;
}

} // namespace

std::vector<std::string> reportLines(const PayloadReport& report, bool isColoured)
{
    std::vector<std::string> lines;
    for (const ProductReport& product : report.products) {
        lines.push_back(nameOfPath(product.path));
        for (const ElementReport& element : product.elements) {
            addElement(lines, element);
        }
    }
    std::ranges::move(findingLines(report, Severity::note, isColoured), std::back_inserter(lines));
    lines.push_back(countOf(countOf(report, Severity::error), "error") + ", "
        + countOf(countOf(report, Severity::warning), "warning") + ", "
        + countOf(countOf(report, Severity::note), "note"));
    return lines;
}

std::vector<std::string> findingLines(const PayloadReport& report, Severity least, bool isColoured)
{
    std::vector<std::string> lines;
    for (const Finding& finding : report.findings) {
        if (finding.code.severity() <= least) {
            lines.push_back(lineOf(finding, isColoured));
        }
    }
    return lines;
}

std::string reportJson(const PayloadReport& report)
{
    Json json;
    json["format"] = jsonFormat;
    for (const Severity severity : enumerators<Severity, nameOf>) {
        json[std::string(nameOf(severity)) + "s"] = countOf(report, severity);
    }
    Json& products = json["products"] = Json::array();
    for (const ProductReport& product : report.products) {
        products.push_back(productJson(product));
    }
    Json& findings = json["findings"] = Json::array();
    for (const Finding& finding : report.findings) {
        findings.push_back({{"severity", nameOf(finding.code.severity())}, {"code", finding.code.name()},
            {"path", printable(finding.path)}, {"text", printable(finding.text)}});
    }
    return json.dump(2);
}

bool isRefused(const PayloadReport& report, bool isStrict)
{
    return countOf(report, Severity::error) > 0 || (isStrict && countOf(report, Severity::warning) > 0);
}

} // namespace corvellane
