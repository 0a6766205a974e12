#pragma once

#include "platform/script/Lexer.h"

#include <string>

namespace corvellane {

/// The numbers of the errors that scripts and their services raise.
namespace script_error {
constexpr int userCanceled = -128;
constexpr int connectionInvalid = -609;
constexpr int cannotGetObject = -1728;
constexpr int cannotConvert = -1700;
constexpr int notAuthorized = -1743;
constexpr int notPermitted = -10004;
constexpr int syntax = -2741;
constexpr int undefinedVariable = -2753;
} // namespace script_error

/// An error that a running script can catch.
struct ScriptError {
    /// For a person; what a `try` block's error branch receives.
    std::string message;
    int number;
};

/// The error information of an execution as text: braces round one indented "KEY = value;" a line. `range` is the
/// stretch of the source that the error is about.
std::string describeError(const ScriptError& error, SourceRange range);

} // namespace corvellane
