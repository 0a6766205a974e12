#include "tools/AgreementJson.h"

#include "rtf/Blocks.h"
#include "tools/AgreementNames.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>

namespace corvellane {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::array<const char*, 4> sideNames{"top", "left", "bottom", "right"};

std::string colorName(const rtf::Color& color)
{
    if (!color.isSet) {
        return {};
    }
    std::string name = "#";
    for (const unsigned part : {color.red, color.green, color.blue}) {
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

Json borderJson(const rtf::Border& border)
{
    Json json;
    if (border.style != rtf::LineStyle::none) {
        json["style"] = nameOf(border.style);
        json["width"] = rtf::points(border.width);
        add(json, "space", border.space);
        add(json, "colour", colorName(border.color));
    }
    return json;
}

Json bordersJson(const rtf::Borders& borders)
{
    Json json;
    for (std::size_t side = 0; side < borders.size(); ++side) {
        add(json, sideNames.at(side), borderJson(borders.at(side)));
    }
    return json;
}

/// Those below zero say nothing.
Json insetJson(const std::array<std::int16_t, 4>& inset)
{
    Json json;
    for (std::size_t side = 0; side < inset.size(); ++side) {
        add(json, sideNames.at(side), std::max(0.0, rtf::points(inset.at(side))));
    }
    return json;
}

Json pictureJson(const rtf::Picture& picture)
{
    Json json{{"kind", nameOf(picture.kind)}, {"bytes", picture.bytes.size()}};
    add(json, "width", rtf::points(picture.width));
    add(json, "height", rtf::points(picture.height));
    return json;
}

void addLines(Json& object, const rtf::TextAttributes& attributes)
{
    if (nameOf(attributes.underline).empty()) {
        add(object, "underline", attributes.underline != rtf::Underline::none);
    } else {
        object["underline"] = nameOf(attributes.underline);
    }
    add(object, "strike", attributes.strike);
}

void addAttributes(Json& object, const rtf::AttributedText& text, std::uint32_t index)
{
    const rtf::TextAttributes& attributes = text.attributes[index];
    object["font"] = text.families[attributes.family].name;
    object["size"] = attributes.size / 2.0;
    add(object, "bold", attributes.bold);
    add(object, "italic", attributes.italic);
    addLines(object, attributes);
    add(object, "colour", colorName(attributes.color));
    add(object, "background", colorName(attributes.background));
    add(object, "letterSpacing", rtf::points(attributes.letterSpacing));
    add(object, "script", nameOf(attributes.script));
    add(object, "offset", attributes.baselineOffset / 2.0);
    add(object, "capitals", nameOf(attributes.capitals));
    add(object, "border", borderJson(attributes.frame));
    add(object, "link", attributes.link != 0 ? text.links[attributes.link - 1] : "");
    if (attributes.picture != 0) {
        object["picture"] = pictureJson(text.pictures[attributes.picture - 1]);
    }
}

Json runJson(const rtf::AttributedText& text, const rtf::Run& run)
{
    Json json;
    json["text"] = run.text;
    addAttributes(json, text, run.attributes);
    return json;
}

Json tabsJson(const std::vector<rtf::TabStop>& stops)
{
    Json json;
    for (const rtf::TabStop& stop : stops) {
        Json& added = json.emplace_back(Json{{"kind", nameOf(stop.kind)}, {"at", rtf::points(stop.position)}});
        add(added, "leader", nameOf(stop.leader));
    }
    return json;
}

Json lineHeightJson(const rtf::LineHeight& height)
{
    const bool isMultiple = height.kind == rtf::LineHeight::Kind::multiple;
    Json json;
    add(json, std::string(nameOf(height.kind)).c_str(), isMultiple ? height.value / 240.0 : rtf::points(height.value));
    return json;
}

void addSpace(Json& object, const char* key, rtf::Twips space, bool isAutomatic)
{
    if (isAutomatic) {
        object[key] = "automatic";
    } else {
        add(object, key, rtf::points(space));
    }
}

void addFormat(Json& json, const rtf::AttributedText& text, const rtf::ParagraphFormat& format)
{
    add(json, "alignment", nameOf(format.alignment));
    add(json, "direction", nameOf(format.direction));
    add(json, "left", rtf::points(format.leftIndent));
    add(json, "right", rtf::points(format.rightIndent));
    add(json, "firstLine", rtf::points(format.firstLineIndent));
    addSpace(json, "before", format.spaceBefore, format.automaticSpaceBefore);
    addSpace(json, "after", format.spaceAfter, format.automaticSpaceAfter);
    add(json, "contextualSpace", format.contextualSpace);
    add(json, "lineHeight", lineHeightJson(format.lineHeight()));
    add(json, "tabs", tabsJson(text.tabsOf(format)));
    add(json, "shading", colorName(format.shading));
    add(json, "borders", bordersJson(format.borders));
    add(json, "list", format.list);
    add(json, "listLevel", format.listLevel);
    add(json, "note", format.isNote);
    add(json, "pageBreak", format.pageBreakBefore);
}

Json paragraphJson(const rtf::AttributedText& text, const rtf::Paragraph& paragraph)
{
    Json json;
    addFormat(json, text, text.formats[paragraph.format]);
    if (paragraph.begin == paragraph.end) {
        addAttributes(json["end"], text, paragraph.endAttributes);
    }
    Json& runs = json["runs"] = Json::array();
    for (const rtf::Run& run : text.runsOf(paragraph)) {
        runs.push_back(runJson(text, run));
    }
    return json;
}

Json blocksJson(const rtf::AttributedText& text, const std::vector<rtf::Block>& blocks);

Json cellJson(const rtf::AttributedText& text, const rtf::TableCell& cell)
{
    Json json;
    add(json, "rightEdge", rtf::points(cell.format.rightEdge));
    add(json, "shading", colorName(cell.format.shading));
    add(json, "borders", bordersJson(cell.format.borders));
    add(json, "padding", insetJson(cell.format.inset));
    add(json, "alignment", nameOf(cell.format.alignment));
    add(json, "merge", nameOf(cell.format.horizontalMerge));
    add(json, "verticalMerge", nameOf(cell.format.verticalMerge));
    json["paragraphs"] = blocksJson(text, cell.blocks);
    return json;
}

Json rowJson(const rtf::AttributedText& text, const rtf::TableRow& row)
{
    Json json;
    add(json, "left", rtf::points(row.format.left));
    add(json, "alignment", nameOf(row.format.alignment));
    add(json, "rightToLeft", row.format.rightToLeft);
    Json borders = bordersJson(row.format.borders);
    add(borders, "between", borderJson(row.format.innerBorders[0]));
    add(borders, "columns", borderJson(row.format.innerBorders[1]));
    add(json, "borders", borders);
    add(json, "padding", insetJson(row.format.inset));
    Json& cells = json["cells"] = Json::array();
    for (const rtf::TableCell& cell : row.cells) {
        cells.push_back(cellJson(text, cell));
    }
    return json;
}

Json blocksJson(const rtf::AttributedText& text, const std::vector<rtf::Block>& blocks)
{
    Json json = Json::array();
    for (const rtf::Block& block : blocks) {
        if (block.rows.empty()) {
            json.push_back(paragraphJson(text, block.paragraph));
            continue;
        }
        Json& rows = json.emplace_back()["rows"] = Json::array();
        for (const rtf::TableRow& row : block.rows) {
            rows.push_back(rowJson(text, row));
        }
    }
    return json;
}

/// What is known of fonts beyond their names.
Json fontsJson(const rtf::AttributedText& text)
{
    Json json;
    for (const rtf::FontFamily& family : text.families) {
        Json font{{"name", family.name}};
        add(font, "alternative", family.alternative);
        add(font, "class", nameOf(family.kind));
        add(font, "language", nameOf(family.language));
        if (font.size() > 1) {
            json.push_back(font);
        }
    }
    return json;
}

} // namespace

std::string agreementJson(const rtf::AttributedText& text)
{
    Json json;
    json["paragraphs"] = blocksJson(text, rtf::blocksOf(text));
    add(json, "fonts", fontsJson(text));
    add(json, "largerSpaceCounts", text.largerSpaceCounts);
    if (text.defaultTab != rtf::AttributedText().defaultTab) {
        json["defaultTab"] = rtf::points(text.defaultTab);
    }
    return json.dump(2) + '\n';
}

} // namespace corvellane
