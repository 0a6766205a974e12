#pragma once

#include "rtf/AttributedText.h"

#include <cstdint>
#include <string>

namespace corvellane {

class Console;
class Files;

/// The text alone, every paragraph ended by a line feed; U+2028 stays as it is. A row of a table is one line, its cells
/// parted by tabs, the paragraphs within a cell by U+2028; a table within a cell stands on lines of its own.
std::string agreementPlainText(const rtf::AttributedText& text);

enum class AgreementForm : std::uint8_t { json, plainText };

/// Prints the agreement in the file in that form, or the reader's message when there is none. The exit code: 0 or 1.
int reportAgreement(const Files& files, const std::string& path, AgreementForm form, Console& console);

} // namespace corvellane
