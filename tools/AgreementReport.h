#pragma once

#include "rtf/AttributedText.h"

#include <cstdint>
#include <string>

namespace corvellane {

class Console;
class Files;

/// The attributed text as JSON: one object whose only key `paragraphs` holds an array, one paragraph after the other.
/// UTF-8 (RFC 8259), indented, ended by a line feed. Lengths are in points. A key is left out where its value says
/// nothing: false, 0, the natural alignment or line height, none.
///
/// A paragraph: `alignment` ("left", "right", "centre", "justified"), `left` and `right` (indents), `firstLine`
/// (indent, relative to `left`), `before` and `after` (space), `lineHeight` (an object with one of the keys
/// `multiple`, `atLeast`, `exactly`), `tabs` (an array of objects: `at`, and `kind` "left", "centre", "right" or
/// "decimal"), `pageBreak` (true: it begins a page), `runs` (an array, always there; empty for an empty paragraph),
/// and for an empty paragraph `end`, an object with the attributes that give it its height.
///
/// A run: `text`, `font` (the family) and `size`, always there; `bold`, `italic`, `underline`, `strike` (true),
/// `colour` and `background` ("#rrggbb"), `script` ("super", "sub"), `offset` (upwards), `capitals` ("small", "all"),
/// `link` (the target).
std::string agreementJson(const rtf::AttributedText& text);

/// The text alone, every paragraph ended by a line feed; U+2028 stays as it is.
std::string agreementPlainText(const rtf::AttributedText& text);

enum class AgreementForm : std::uint8_t { json, plainText };

/// Prints the agreement in the file in that form, or the reader's message when there is none. The exit code: 0 or 1.
int reportAgreement(const Files& files, const std::string& path, AgreementForm form, Console& console);

} // namespace corvellane
