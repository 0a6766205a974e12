#pragma once

#include "app/System.h"

#include <string>

namespace corvellane {

/// What the program ends with.
enum class Status { done = 0, failed = 1, wrongUsage = 2, notAuthorized = 3 };

struct Ending {
    Status status = Status::done;
    /// For a person; empty when it is done.
    std::string message;
    /// Whether a command has been carried out, whatever has become of it.
    bool hasBegun = false;
};

/// Runs a script as the wizard does and waits until it has ended. On a terminal, standard error shows how far it is,
/// after the word for what is done.
Ending runScript(System& system, const std::string& script, const std::string& word);

} // namespace corvellane
