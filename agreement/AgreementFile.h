#pragma once

#include "agreement/AttributedText.h"

#include <string>
#include <variant>

namespace corvellane {

/// Why a file gave no text, in one line for a person, with the file's own name in it.
struct AgreementFailure {
    std::string description;
};

/// Reads the rich-text file at that path: a regular file of at most `largestRtf` bytes, held in memory whole while it
/// is read. Any thread.
std::variant<AttributedText, AgreementFailure> readAgreement(const std::string& path);

} // namespace corvellane
