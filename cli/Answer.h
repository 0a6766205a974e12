#pragma once

#include "cli/Comparison.h"
#include "cli/ScriptRun.h"

#include <optional>
#include <string>
#include <vector>

namespace corvellane {

// NOLINTBEGIN(readability-redundant-member-init): designated initializers leave some out

/// What is said of one element.
struct ElementAnswer {
    /// The maker's.
    std::string path;
    /// "as shipped", "missing", "differs", "installed", "removed" or "absent"; empty where nothing is said of it.
    std::string state;
    std::vector<Difference> differences{};
};

/// What the program says to one command.
struct Answer {
    std::string command;
    Status status = Status::done;
    /// Why it is not done, in one line for a person.
    std::string message{};
    /// Whether something has been, or may have been, changed; absent for what changes nothing anyhow.
    std::optional<bool> changed{};
    std::vector<std::string> users{};
    std::vector<ElementAnswer> elements{};
    /// What a removal has left, and why.
    std::vector<Difference> kept{};
};

// NOLINTEND(readability-redundant-member-init)

/// A line an element, for a person.
std::vector<std::string> answerLines(const Answer& answer);

/// The object that docs/cli.md describes, indented, without a line feed at its end.
std::string answerJson(const Answer& answer);

} // namespace corvellane
