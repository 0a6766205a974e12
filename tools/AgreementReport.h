#pragma once

#include "base/Expected.h"
#include "rtf/AttributedText.h"

#include <cstdint>
#include <string>

namespace corvellane {

class Files;

/// The text alone, every paragraph ended by a line feed; U+2028 stays as it is. A row of a table is one line, its cells
/// parted by tabs, the paragraphs within a cell by U+2028; a table within a cell stands on lines of its own.
std::string agreementPlainText(const rtf::AttributedText& text);

enum class AgreementForm : std::uint8_t { json, plainText };

/// The agreement in the file in that form; fails with the reader's message when there is none.
Expected<std::string> agreementReport(const Files& files, const std::string& path, AgreementForm form);

} // namespace corvellane
