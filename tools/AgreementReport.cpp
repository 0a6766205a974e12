#include "tools/AgreementReport.h"

#include "agreement/Document.h"
#include "platform/Console.h"

#include <nlohmann/json.hpp>

#include <array>
#include <string_view>

namespace corvellane {
namespace {

using Json = nlohmann::ordered_json;

/// What the report calls each enumerator in their order; nothing for what goes without saying.
template <typename Kind>
constexpr auto names = std::array<std::string_view, 0>();
template <>
constexpr auto names<rtf::Alignment> = std::to_array<std::string_view>({"", "left", "right", "centre", "justified"});
template <>
constexpr auto names<rtf::LineHeight::Kind> = std::to_array<std::string_view>({"", "multiple", "atLeast", "exactly"});
template <>
constexpr auto names<rtf::TabKind> = std::to_array<std::string_view>({"left", "centre", "right", "decimal"});
template <>
constexpr auto names<rtf::VerticalPosition> = std::to_array<std::string_view>({"", "super", "sub"});
template <>
constexpr auto names<rtf::Capitals> = std::to_array<std::string_view>({"", "small", "all"});

/// Compilers write a value that no enumerator has as a number behind its type in brackets.
template <auto Value>
constexpr bool isEnumerator()
{
    return std::string_view(__PRETTY_FUNCTION__).find("Value = (") == std::string_view::npos;
}

template <typename Kind>
std::string_view nameOf(Kind kind)
{
    constexpr std::size_t count = names<Kind>.size();
    static_assert(isEnumerator<static_cast<Kind>(count - 1)>() && !isEnumerator<static_cast<Kind>(count)>());
    return names<Kind>.at(static_cast<std::size_t>(kind));
}

std::string colorName(const std::optional<rtf::Color>& color)
{
    if (!color) {
        return {};
    }
    std::string name = "#";
    for (const unsigned part : {color->red, color->green, color->blue}) {
        name += "0123456789abcdef"[part / 16];
        name += "0123456789abcdef"[part % 16];
    }
    return name;
}

/// Leaves out the key of a value that says nothing.
template <typename Value>
void add(Json& object, const char* key, const Value& value)
{
    if (value != Value{}) {
        object[key] = value;
    }
}

void addAttributes(Json& object, const rtf::AttributedText& text, std::uint32_t index)
{
    const rtf::TextAttributes& attributes = text.attributes[index];
    object["font"] = text.families[attributes.family];
    object["size"] = attributes.size;
    add(object, "bold", attributes.bold);
    add(object, "italic", attributes.italic);
    add(object, "underline", attributes.underline);
    add(object, "strike", attributes.strike);
    add(object, "colour", colorName(attributes.color));
    add(object, "background", colorName(attributes.background));
    add(object, "script", nameOf(attributes.script));
    add(object, "offset", attributes.baselineOffset);
    add(object, "capitals", nameOf(attributes.capitals));
    add(object, "link", attributes.link ? text.links[*attributes.link] : "");
}

Json runJson(const rtf::AttributedText& text, const rtf::Run& run)
{
    Json json;
    json["text"] = text.textOf(run);
    addAttributes(json, text, run.attributes);
    return json;
}

Json tabsJson(const std::vector<rtf::TabStop>& stops)
{
    Json json;
    for (const rtf::TabStop& stop : stops) {
        json.push_back({{"kind", nameOf(stop.kind)}, {"at", stop.position}});
    }
    return json;
}

Json lineHeightJson(const rtf::LineHeight& height)
{
    Json json;
    add(json, std::string(nameOf(height.kind)).c_str(), height.value);
    return json;
}

Json paragraphJson(const rtf::AttributedText& text, const rtf::Paragraph& paragraph)
{
    const rtf::ParagraphFormat& format = text.formats[paragraph.format];
    Json json;
    add(json, "alignment", nameOf(format.alignment));
    add(json, "left", format.leftIndent);
    add(json, "right", format.rightIndent);
    add(json, "firstLine", format.firstLineIndent);
    add(json, "before", format.spaceBefore);
    add(json, "after", format.spaceAfter);
    add(json, "lineHeight", lineHeightJson(format.lineHeight));
    add(json, "tabs", tabsJson(text.tabsOf(format)));
    add(json, "pageBreak", format.pageBreakBefore);
    if (paragraph.firstRun == paragraph.endRun) {
        addAttributes(json["end"], text, paragraph.endAttributes);
    }
    Json& runs = json["runs"] = Json::array();
    for (const rtf::Run& run : text.runsOf(paragraph)) {
        runs.push_back(runJson(text, run));
    }
    return json;
}

} // namespace

std::string agreementJson(const rtf::AttributedText& text)
{
    Json json;
    Json& paragraphs = json["paragraphs"] = Json::array();
    for (const rtf::Paragraph& paragraph : text.paragraphs) {
        paragraphs.push_back(paragraphJson(text, paragraph));
    }
    return json.dump(2) + '\n';
}

std::string agreementPlainText(const rtf::AttributedText& text)
{
    std::string plain;
    for (const rtf::Paragraph& paragraph : text.paragraphs) {
        for (const rtf::Run& run : text.runsOf(paragraph)) {
            plain += text.textOf(run);
        }
        plain += '\n';
    }
    return plain;
}

int reportAgreement(const Files& files, const std::string& path, AgreementForm form, Console& console)
{
    const auto agreement = readAgreement(files, path);
    if (!agreement) {
        console.print(agreement.error().message);
        return 1;
    }
    std::string report = form == AgreementForm::json ? agreementJson(*agreement) : agreementPlainText(*agreement);
    if (!report.empty()) {
        report.pop_back();
        console.print(report);
    }
    return 0;
}

} // namespace corvellane
