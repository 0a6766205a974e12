#pragma once

#include <memory>
#include <optional>
#include <string>

namespace corvellane {

/// What executing a script gave.
struct ScriptExecution {
    struct Value {
        /// The value as text; absent for a value that has none.
        std::optional<std::string> text;
    };

    /// Absent when the script could not run, or failed.
    std::optional<Value> result;
    /// The description of the error information; absent when there was no error.
    std::optional<std::string> errorDescription;
};

/// An automation script, ready to be executed.
class Script {
public:
    virtual ~Script() = default;

    /// Compiles and runs the script on the calling thread and returns when it has ended, however long that takes.
    virtual ScriptExecution execute() = 0;
};

/// Runs automation scripts. Any thread.
class ScriptService {
public:
    virtual ~ScriptService() = default;

    /// A script of the given source text (UTF-8, paths in it as bytes); null when the service can make none.
    virtual std::unique_ptr<Script> create(std::string source) = 0;
};

} // namespace corvellane
