#pragma once

#include "platform/script/ErrorInformation.h"
#include "platform/script/Syntax.h"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

namespace corvellane {

class AdministratorPrompt;
class FileManager;
class Shell;
class StandardFolders;

/// What a running script can reach.
struct ScriptHost {
    Shell& shell;
    AdministratorPrompt& prompt;
    FileManager& fileManager;
    const StandardFolders& folders;
};

/// Nothing, a text or an integer.
using ScriptValue = std::variant<std::monostate, std::string, std::int64_t>;

/// Absent for the value that is nothing.
std::optional<std::string> asText(const ScriptValue& value);

/// An error that ended a script, and the statement that raised it.
struct UncaughtError {
    ScriptError error;
    SourceRange range;
};

/// Runs a script on the calling thread and gives what it returns, or else the value of its last statement.
/// Administrator rights are asked for at the first command that wants them and given up when the script ends.
std::variant<ScriptValue, UncaughtError> runScript(const SyntaxTree& script, const ScriptHost& host);

} // namespace corvellane
