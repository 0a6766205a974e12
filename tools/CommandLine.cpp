#include "tools/CommandLine.h"

#include "tools/PrintableText.h"

#include <cstdio>
#include <filesystem>

namespace corvellane {
namespace {

constexpr int wrongUsage = 2;

std::string problemOf(const CLI::App& program, const std::string& value)
{
    const bool isOption = value.starts_with('-') && program.get_option_no_throw(value) != nullptr;
    return value.empty() || isOption ? "a value is missing" : "";
}

std::string absolutePath(const std::string& path)
{
    std::error_code error;
    std::string absolute = std::filesystem::absolute(path, error).native();
    while (absolute.size() > 1 && absolute.ends_with('/')) {
        absolute.pop_back();
    }
    return absolute;
}

} // namespace

CLI::Validator asValue(const CLI::App& program)
{
    return {[&program](std::string& value) { return problemOf(program, value); }, ""};
}

CLI::Validator asPath(const CLI::App& program)
{
    return {[&program](std::string& value) {
                std::string problem = problemOf(program, value);
                value = absolutePath(value);
                return problem;
            },
        ""};
}

std::optional<int> readArguments(CLI::App& program, int count, char** arguments)
{
    try {
        program.parse(count, arguments);
        return std::nullopt;
    } catch (const CLI::CallForHelp&) {
        std::fputs(program.help().c_str(), stdout);
        return 0;
    } catch (const CLI::ParseError& error) {
        return refuseUsage(program, error.what());
    }
}

int refuseUsage(const CLI::App& program, const std::string& reason)
{
    std::fprintf(stderr, "%s: %s\n", program.get_name().c_str(), printable(reason).c_str());
    return wrongUsage;
}

} // namespace corvellane
