#include "tools/CommandLine.h"

#include "base/PathNames.h"
#include "tools/Colours.h"
#include "tools/PrintableText.h"

#include <algorithm>
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

constexpr int notWritten = 1;

namespace fs = std::filesystem;

/// With "." and ".." a path has to be looked up, as only the system knows where they lead.
std::string absolutePath(const std::string& given)
{
    std::error_code error;
    const fs::path path = fs::absolute(given, error);
    const bool isDirect = std::ranges::none_of(path, [](const fs::path& part) { return part == "." || part == ".."; });
    const fs::path direct = isDirect ? path : fs::weakly_canonical(path, error);
    return withoutEnd(error ? path.native() : direct.native());
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

bool liesIn(const std::string& path, const std::string& folder)
{
    std::error_code error;
    const fs::path real = fs::weakly_canonical(folder, error);
    return !error && std::ranges::mismatch(real, fs::weakly_canonical(path, error)).in1 == real.end();
}

std::string productsFolderIn(const std::string& folder)
{
    std::error_code error;
    const std::string products = folder + "/Products";
    const bool isMakers = lastPathComponent(folder) != "Products" && fs::is_directory(products, error);
    return isMakers ? products : folder;
}

void addCommonOptions(CLI::App& program, const std::string& more)
{
    program.set_help_flag("--help", "Print this and end");
    program.set_version_flag(
        "--version", program.get_name() + " " CORVELLANE_VERSION, "Print the program's version and end");
    program.footer(more);
}

std::optional<int> readArguments(CLI::App& program, int count, char** arguments, const Refuse& refuse)
{
    try {
        program.parse(count, arguments);
        return std::nullopt;
    } catch (const CLI::CallForHelp&) {
        std::fputs(program.help().c_str(), stdout);
        return 0;
    } catch (const CLI::CallForVersion& version) {
        std::printf("%s\n", version.what());
        return 0;
    } catch (const CLI::ParseError& error) {
        return refuse(program, error.what());
    }
}

void complain(const CLI::App& program, std::string_view text)
{
    const std::string name = coloured(program.get_name() + ":", Colour::red, showsColours(stderr));
    std::fprintf(stderr, "%s %.*s\n", name.c_str(), static_cast<int>(text.size()), text.data());
}

int endOutput(const CLI::App& program, int status)
{
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) {
        return status;
    }
    complain(program, "standard output cannot be written");
    return notWritten;
}

int refuseUsage(const CLI::App& program, const std::string& reason)
{
    complain(program, printable(reason));
    return wrongUsage;
}

std::optional<int> refuseAmongProducts(const CLI::App& program, const std::string& into, const std::string& products)
{
    return liesIn(into, products)
        ? std::optional(refuseUsage(
              program, "“" + into + "” lies in the products: what is installed would be taken for one of them"))
        : std::nullopt;
}

} // namespace corvellane
