#include "cli/Answer.h"

#include "base/PathNames.h"
#include "install/ElementKind.h"
#include "tools/PrintableText.h"

#include <nlohmann/json.hpp>

namespace corvellane {
namespace {

using Json = nlohmann::ordered_json;

constexpr int jsonFormat = 1;

std::string productOf(const ElementAnswer& element)
{
    return printable(lastPathComponent(folderOf(element.path)));
}

std::string nameOf(const ElementAnswer& element)
{
    return printable(lastPathComponent(element.path));
}

std::string lineOf(const Difference& difference)
{
    return printable(difference.path) + " " + difference.text;
}

std::string lineOf(const ElementAnswer& element)
{
    const std::string said = element.state.empty() ? std::string(nameOf(kindOf(element.path))) : element.state;
    std::string line = productOf(element) + "/" + nameOf(element) + ": " + said;
    const auto& differences = element.differences;
    if (!differences.empty()) {
        line += ": " + lineOf(differences.front());
    }
    return differences.size() > 1 ? line + ", and " + std::to_string(differences.size() - 1) + " more" : line;
}

Json differencesJson(const std::vector<Difference>& differences)
{
    Json json = Json::array();
    for (const Difference& difference : differences) {
        json.push_back({{"path", printable(difference.path)}, {"text", difference.text}});
    }
    return json;
}

Json elementJson(const ElementAnswer& element)
{
    Json json;
    json["product"] = productOf(element);
    json["name"] = nameOf(element);
    json["kind"] = nameOf(kindOf(element.path));
    if (!element.state.empty()) {
        json["state"] = element.state;
        json["differences"] = differencesJson(element.differences);
    }
    return json;
}

} // namespace

std::vector<std::string> answerLines(const Answer& answer)
{
    std::vector<std::string> lines;
    lines.reserve(answer.elements.size() + answer.kept.size());
    for (const ElementAnswer& element : answer.elements) {
        lines.push_back(lineOf(element));
    }
    for (const Difference& kept : answer.kept) {
        lines.push_back("kept: " + lineOf(kept));
    }
    return lines;
}

std::string answerJson(const Answer& answer)
{
    Json json;
    json["format"] = jsonFormat;
    json["command"] = answer.command;
    json["status"] = static_cast<int>(answer.status);
    if (!answer.message.empty()) {
        json["message"] = printable(answer.message);
    }
    if (answer.changed) {
        json["changed"] = *answer.changed;
    }
    json["users"] = answer.users;
    Json& elements = json["elements"] = Json::array();
    for (const ElementAnswer& element : answer.elements) {
        elements.push_back(elementJson(element));
    }
    json["kept"] = differencesJson(answer.kept);
    return json.dump(2);
}

} // namespace corvellane
