#pragma once

#include "base/Expected.h"

#include <cstddef>
#include <string>

namespace corvellane::script {

/// The numbers of the errors that scripts and their services raise.
namespace error_number {
constexpr int userCanceled = -128;
constexpr int connectionInvalid = -609;
constexpr int cannotGetObject = -1728;
constexpr int cannotConvert = -1700;
constexpr int notAuthorized = -1743;
constexpr int eventFailed = -10000;
constexpr int notPermitted = -10004;
constexpr int syntax = -2741;
constexpr int undefinedVariable = -2753;
} // namespace error_number

/// A stretch of a script's source text, in bytes.
struct SourceRange {
    std::size_t start = 0;
    std::size_t length = 0;
};

/// Why a script does not compile or has ended early, and the stretch of its source that this is about.
struct LocatedFailure {
    Failure failure;
    SourceRange range;
};

/// The error information of an execution as text: braces round one indented "KEY = value;" a line.
std::string describeError(const LocatedFailure& error);

} // namespace corvellane::script
