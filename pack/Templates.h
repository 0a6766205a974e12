#pragma once

#include "pack/Description.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace corvellane::pack {

/// How a text quotes what is put into it.
enum class Quoting { desktop, manual, xml, shell };

/// What stands in a text, and what is put in its place.
using Words = std::vector<std::pair<std::string, std::string>>;

/// The text with the words replaced, of those that fit at a place the first; what is put in stays as it is.
std::string replaced(const std::string& text, const Words& words);

/// The text in the quoting's own form; for the shell, with its quotes.
std::string quoted(const std::string& text, Quoting quoting);

/// What the sample installer tells a desktop, said of the described one instead: its name, identifier, publisher,
/// homepage and version, and the place of its programs. The date is that of `epoch`, in seconds since 1970.
std::string retold(const std::string& sample, const Description& description, std::int64_t epoch, Quoting quoting);

/// The name on the path that the package gives the program for whoever cannot click.
std::string commandOf(const Description& description);

/// Lines of a shell's that tell, while there are plug-ins, how they are removed as well: that needs the package.
std::string wordsBeforeRemoval(const Description& description);

/// "2026-11-24", "Tue Nov 24 2026", and "Tue, 24 Nov 2026 02:33:07 +0000"; in UTC.
std::string dateOf(std::int64_t epoch);
std::string rpmDateOf(std::int64_t epoch);
std::string longDateOf(std::int64_t epoch);

} // namespace corvellane::pack
