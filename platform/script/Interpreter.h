#pragma once

#include "platform/script/Syntax.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>

namespace corvellane {
class Progress;
class StandardFolders;
} // namespace corvellane

namespace corvellane::script {

class AdministratorPrompt;
class FileManager;
class Shell;

/// What a running script can reach.
struct Host {
    std::shared_ptr<Shell> shell;
    std::shared_ptr<AdministratorPrompt> prompt;
    std::shared_ptr<FileManager> fileManager;
    std::shared_ptr<const StandardFolders> folders;
    std::shared_ptr<Progress> progress;
};

/// Nothing, a text or an integer.
using Value = std::variant<std::monostate, std::string, std::int64_t>;

/// Absent for the value that is nothing.
std::optional<std::string> asText(const Value& value);

/// Runs a script on the calling thread and gives what it returns, or else the value of its last statement; or the error
/// that no `try` block has caught. Administrator rights are asked for at the first command that wants them and given
/// up when the script ends.
Expected<Value, LocatedFailure> run(const SyntaxTree& script, const Host& host);

} // namespace corvellane::script
