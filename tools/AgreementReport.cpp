#include "tools/AgreementReport.h"

#include "agreement/AgreementFile.h"
#include "platform/Console.h"
#include "tools/JsonObject.h"

#include <array>
#include <string_view>

namespace corvellane {
namespace {

constexpr std::array alignmentNames{"", "left", "right", "centre", "justified"};
constexpr std::array lineHeightNames{"", "multiple", "atLeast", "exactly"};
constexpr std::array tabNames{"left", "centre", "right", "decimal"};
constexpr std::array scriptNames{"", "super", "sub"};
constexpr std::array capitalsNames{"", "small", "all"};

template <typename Kind, std::size_t Count>
std::string_view nameOf(Kind kind, const std::array<const char*, Count>& names)
{
    return names[static_cast<std::size_t>(kind)];
}

std::string colorName(const std::optional<Color>& color)
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

void addAttributes(JsonObject& object, const AttributedText& text, std::uint32_t index)
{
    const TextAttributes& attributes = text.attributes[index];
    object.addText("font", text.families[attributes.family]);
    object.addNumber("size", attributes.size);
    object.addFlag("bold", attributes.bold);
    object.addFlag("italic", attributes.italic);
    object.addFlag("underline", attributes.underline);
    object.addFlag("strike", attributes.strike);
    object.addName("colour", colorName(attributes.color));
    object.addName("background", colorName(attributes.background));
    object.addName("script", nameOf(attributes.script, scriptNames));
    object.addNumber("offset", attributes.baselineOffset);
    object.addName("capitals", nameOf(attributes.capitals, capitalsNames));
    object.addName("link", attributes.link ? std::string_view(text.links[*attributes.link]) : "");
}

std::string runJson(const AttributedText& text, const Run& run)
{
    JsonObject object;
    object.addText("text", text.textOf(run));
    addAttributes(object, text, run.attributes);
    return object.text();
}

std::string runsJson(const AttributedText& text, const Paragraph& paragraph)
{
    std::string json;
    for (const Run& run : text.runsOf(paragraph)) {
        json += (json.empty() ? "\n      " : ",\n      ") + runJson(text, run);
    }
    return "[" + json + (json.empty() ? "]" : "\n    ]");
}

std::string tabsJson(const std::vector<TabStop>& stops)
{
    std::string json;
    for (const TabStop& stop : stops) {
        JsonObject object;
        object.addText("kind", nameOf(stop.kind, tabNames));
        object.addNumber("at", stop.position);
        json += (json.empty() ? "[" : ", ") + object.text();
    }
    return json.empty() ? json : json + "]";
}

std::string lineHeightJson(const LineHeight& height)
{
    JsonObject object;
    object.addNumber(nameOf(height.kind, lineHeightNames), height.value);
    return height.kind == LineHeight::Kind::natural ? "" : object.text();
}

std::string paragraphJson(const AttributedText& text, const Paragraph& paragraph)
{
    const ParagraphFormat& format = text.formats[paragraph.format];
    JsonObject object;
    object.addName("alignment", nameOf(format.alignment, alignmentNames));
    object.addNumber("left", format.leftIndent);
    object.addNumber("right", format.rightIndent);
    object.addNumber("firstLine", format.firstLineIndent);
    object.addNumber("before", format.spaceBefore);
    object.addNumber("after", format.spaceAfter);
    object.addJson("lineHeight", lineHeightJson(format.lineHeight));
    object.addJson("tabs", tabsJson(text.tabsOf(format)));
    object.addFlag("pageBreak", format.pageBreakBefore);
    if (paragraph.firstRun == paragraph.endRun) {
        JsonObject end;
        addAttributes(end, text, paragraph.endAttributes);
        object.addJson("end", end.text());
    }
    object.addJson("runs", runsJson(text, paragraph));
    return object.text();
}

} // namespace

std::string agreementJson(const AttributedText& text)
{
    std::string json;
    for (const Paragraph& paragraph : text.paragraphs) {
        json += (json.empty() ? "\n    " : ",\n    ") + paragraphJson(text, paragraph);
    }
    return "{\"paragraphs\": [" + json + (json.empty() ? "]}\n" : "\n]}\n");
}

std::string agreementPlainText(const AttributedText& text)
{
    std::string plain;
    for (const Paragraph& paragraph : text.paragraphs) {
        for (const Run& run : text.runsOf(paragraph)) {
            plain += text.textOf(run);
        }
        plain += '\n';
    }
    return plain;
}

int reportAgreement(const std::string& path, AgreementForm form, Console& console)
{
    const auto text = readAgreement(path);
    if (const auto* const failure = std::get_if<AgreementFailure>(&text)) {
        console.print(failure->description);
        return 1;
    }
    const auto& agreement = std::get<AttributedText>(text);
    std::string report = form == AgreementForm::json ? agreementJson(agreement) : agreementPlainText(agreement);
    if (!report.empty()) {
        report.pop_back();
        console.print(report);
    }
    return 0;
}

std::optional<std::string> agreementProblem(const std::string& path)
{
    const auto text = readAgreement(path);
    const auto* const failure = std::get_if<AgreementFailure>(&text);
    return failure == nullptr ? std::nullopt : std::optional(failure->description);
}

} // namespace corvellane
