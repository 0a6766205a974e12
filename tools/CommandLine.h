#pragma once

#include <CLI/CLI.hpp>

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace corvellane {

/// Refuses what is no value of an option: nothing, and an option of the program's, before which the value was
/// forgotten. The program outlives it.
CLI::Validator asValue(const CLI::App& program);

/// The same, and makes the value an absolute path without a trailing "/". Links stay as they are, unless there is "."
/// or ".." in the path: then it is where all of them lead.
CLI::Validator asPath(const CLI::App& program);

/// Whether the path, wherever its links lead, is the folder or something in it, or will be when it is made.
bool liesIn(const std::string& path, const std::string& folder);

/// The products folder in a maker's folder; any other folder is a products folder itself.
std::string productsFolderIn(const std::string& folder);

/// Gives the program the options --help and --version; the help ends with `more`.
void addCommonOptions(CLI::App& program, const std::string& more);

/// Says on standard error, behind the program's name, what is in the way; as it stands.
void complain(const CLI::App& program, std::string_view text);

/// Says on standard error, in one line, what is wrong with the command line, and gives the exit status for that, 2.
int refuseUsage(const CLI::App& program, const std::string& reason);

/// Refuses, with the exit status, to install into the products.
std::optional<int> refuseAmongProducts(const CLI::App& program, const std::string& into, const std::string& products);

/// Says what is wrong with the command line, and gives the exit status.
using Refuse = std::function<int(const CLI::App& program, const std::string& reason)>;

/// Reads the arguments as the program was told to. Gives the exit status when it is to end at once: 0 after the usage
/// or the version on standard output, or what `refuse` gives.
std::optional<int> readArguments(CLI::App& program, int count, char** arguments, const Refuse& refuse = &refuseUsage);

/// Ends standard output. Gives the exit status: `status`, or 1 after one line on standard error when not everything
/// could be written.
int endOutput(const CLI::App& program, int status);

} // namespace corvellane
