#include "pack/Templates.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <string_view>

namespace corvellane::pack {
namespace {

std::string formatted(std::int64_t epoch, const char* format)
{
    const auto time = static_cast<std::time_t>(epoch);
    std::array<char, 64> text{};
    return {text.data(), std::strftime(text.data(), text.size(), format, std::gmtime(&time))};
}

std::string inUpperCase(std::string name)
{
    std::ranges::transform(name, name.begin(),
        [](char letter) { return 'a' <= letter && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter; });
    return name;
}

} // namespace

std::string replaced(const std::string& text, const Words& words)
{
    std::string result;
    for (std::size_t at = 0; at < text.size();) {
        const auto found = std::ranges::find_if(
            words, [&](const auto& pair) { return std::string_view(text).substr(at).starts_with(pair.first); });
        if (found == words.end()) {
            result += text[at++];
        } else {
            result += found->second;
            at += found->first.size();
        }
    }
    return result;
}

std::string quoted(const std::string& text, Quoting quoting)
{
    switch (quoting) {
    case Quoting::xml:
        return replaced(text, {{"&", "&amp;"}, {"<", "&lt;"}, {">", "&gt;"}, {"\"", "&quot;"}});
    case Quoting::shell:
        return std::string("'").append(replaced(text, {{"'", R"('\'')"}})).append("'");
    case Quoting::desktop:
        return replaced(text, {{"\\", "\\\\"}});
    case Quoting::manual:
        return replaced(text, {{"\\", "\\e"}});
    }
    return text;
}

std::string retold(const std::string& sample, const Description& description, std::int64_t epoch, Quoting quoting)
{
    const auto inside = [quoting](const std::string& text) { return quoted(text, quoting); };
    const std::string programs = "/usr/lib/" + description.packageName();
    // What begins like another one stands in front of it.
    return replaced(sample,
        {{"com.corvellane.PluginInstaller", description.identifier},
            {R"(id="com.corvellane")",
                "id=\"" + description.identifier.substr(0, description.identifier.rfind('.')) + '"'},
            {"The authors of the Corvellane Plugin Installer", inside(description.publisher)},
            {"Corvellane Plugin Installer", inside(description.name)},
            {"https://corvellane.example/", inside(description.homepage)}, {"@PROJECT_VERSION@", description.version},
            {"@DATE@", dateOf(epoch)}, {R"(corvellane\-cli)", description.packageName() + R"(\-cli)"},
            {"CORVELLANE-CLI", inUpperCase(commandOf(description))}, {"/usr/lib/corvellane-installer", programs},
            {"Exec=corvellane-installer", "Exec=" + programs + "/bin/corvellane-installer"},
            {"Corvellane", inside(description.publisher)}});
}

std::string commandOf(const Description& description)
{
    return description.packageName() + "-cli";
}

std::string wordsBeforeRemoval(const Description& description)
{
    return "if [ -n \"$(ls -A /Applications/Corvellane 2>/dev/null)\" ]; then\n    echo \"" + description.packageName()
        + ": the plug-ins that it has installed stay. Who wants them gone as well installs the\"\n"
          "    echo \"package again, runs \\\"sudo "
        + commandOf(description)
        + " remove\\\", for other users with\"\n"
          "    echo \"\\\"--for-user NAME\\\", and then removes it.\"\nfi\n";
}

std::string dateOf(std::int64_t epoch)
{
    return formatted(epoch, "%Y-%m-%d");
}

std::string rpmDateOf(std::int64_t epoch)
{
    return formatted(epoch, "%a %b %d %Y");
}

std::string longDateOf(std::int64_t epoch)
{
    return formatted(epoch, "%a, %d %b %Y %H:%M:%S +0000");
}

} // namespace corvellane::pack
