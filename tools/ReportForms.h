#pragma once

#include "tools/PayloadReport.h"

#include <string>
#include <vector>

namespace corvellane {

/// For a person: product by product, element by element, then the findings, and how many there are of each severity.
/// With colours, severities are told apart by a terminal's escape sequences.
std::vector<std::string> reportLines(const PayloadReport& report, bool isColoured);

/// The findings of a severity and graver ones, a line each as above.
std::vector<std::string> findingLines(const PayloadReport& report, Severity least, bool isColoured);

/// For programs: the object that docs/rehearse.md describes, indented, without a line feed at its end.
std::string reportJson(const PayloadReport& report);

/// Whether something stands in the way: an error, or when one is strict, a warning.
bool isRefused(const PayloadReport& report, bool isStrict);

} // namespace corvellane
