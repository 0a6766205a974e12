#include "tools/AgreementReport.h"

#include "agreement/Document.h"
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

void addAttributes(JsonObject& object, const rtf::AttributedText& text, std::uint32_t index)
{
    const rtf::TextAttributes& attributes = text.attributes[index];
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

std::string runJson(const rtf::AttributedText& text, const rtf::Run& run)
{
    JsonObject object;
    object.addText("text", text.textOf(run));
    addAttributes(object, text, run.attributes);
    return object.text();
}

std::string runsJson(const rtf::AttributedText& text, const rtf::Paragraph& paragraph)
{
    std::string json;
    for (const rtf::Run& run : text.runsOf(paragraph)) {
        json += (json.empty() ? "\n      " : ",\n      ") + runJson(text, run);
    }
    return "[" + json + (json.empty() ? "]" : "\n    ]");
}

std::string tabsJson(const std::vector<rtf::TabStop>& stops)
{
    std::string json;
    for (const rtf::TabStop& stop : stops) {
        JsonObject object;
        object.addText("kind", nameOf(stop.kind, tabNames));
        object.addNumber("at", stop.position);
        json += (json.empty() ? "[" : ", ") + object.text();
    }
    return json.empty() ? json : json + "]";
}

std::string lineHeightJson(const rtf::LineHeight& height)
{
    JsonObject object;
    object.addNumber(nameOf(height.kind, lineHeightNames), height.value);
    return height.kind == rtf::LineHeight::Kind::natural ? "" : object.text();
}

std::string paragraphJson(const rtf::AttributedText& text, const rtf::Paragraph& paragraph)
{
    const rtf::ParagraphFormat& format = text.formats[paragraph.format];
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

std::string agreementJson(const rtf::AttributedText& text)
{
    std::string json;
    for (const rtf::Paragraph& paragraph : text.paragraphs) {
        json += (json.empty() ? "\n    " : ",\n    ") + paragraphJson(text, paragraph);
    }
    return "{\"paragraphs\": [" + json + (json.empty() ? "]}\n" : "\n]}\n");
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

std::optional<std::string> agreementProblem(const Files& files, const std::string& path)
{
    const auto agreement = readAgreement(files, path);
    return agreement ? std::nullopt : std::optional(agreement.error().message);
}

} // namespace corvellane
