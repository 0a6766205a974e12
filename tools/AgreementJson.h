#pragma once

#include "rtf/AttributedText.h"

#include <string>

namespace corvellane {

/// The attributed text as JSON. UTF-8 (RFC 8259), indented, ended by a line feed. Lengths are in points. A key is left
/// out where its value says nothing: false, 0, the natural alignment or line height, none.
///
/// The one object has `paragraphs`, an array of paragraphs and tables in their order, `fonts`, `largerSpaceCounts`
/// (true: of two spaces between paragraphs the larger, not the sum) and `defaultTab` where it is not 36.
///
/// A paragraph: `alignment` ("left", "right", "centre", "justified"), `direction` ("leftToRight", "rightToLeft"),
/// `left` and `right` (indents), `firstLine` (indent, relative to `left`), `before` and `after` (space; "automatic"
/// where it is the reader's own), `contextualSpace` (true), `lineHeight` (an object with one of the keys `multiple`,
/// `atLeast`, `exactly`), `tabs` (an array of objects: `at`, `kind` "left", "centre", "right" or "decimal", `leader`
/// "dots", "hyphens" or "line"), `shading`, `borders` (an object of `top`, `left`, `bottom`, `right`), `list` (the
/// number of its list, its marker being in the text) and `listLevel` (from 0), `note` (true: of a footnote or an
/// endnote), `pageBreak` (true: it begins a page), `runs` (an array, always there; empty for an empty paragraph), and
/// for an empty paragraph `end`, an object with the attributes that give it its height.
///
/// A run: `text`, `font` (the family) and `size`, always there; `bold`, `italic`, `strike` (true), `underline` (true,
/// or "double", "dotted", "dashed", "dashDotted", "dashDotDotted", "waved", "thick", or "words": under words alone),
/// `colour` and `background` ("#rrggbb"), `letterSpacing`, `script` ("super", "sub"), `offset` (upwards), `capitals`
/// ("small", "all"), `border`, `link` (the target), `picture` (an object with `kind` "png", "jpeg" or "bitmap",
/// `bytes`, and `width` and `height` to show it at).
///
/// A table: `rows`, an array of objects with `left`, `alignment`, `rightToLeft`, `borders` (with `between` and
/// `columns` beside the sides), `padding` (by side) and `cells`, an array of objects with `rightEdge`, `shading`,
/// `borders`, `padding`, `alignment` ("centre", "bottom"), `merge` and `verticalMerge` ("first", "continued") and
/// `paragraphs`.
///
/// Of `fonts`, an array of what is known of families beyond their names: `name`, `alternative` (another family to take
/// where this one is missing), `class` ("serif", "sans", "fixed", "script", "decorative") and `language` ("japanese",
/// "simplifiedChinese", "traditionalChinese", "korean").
///
/// A border: `style` ("solid", "double", "dotted", "dashed"), `width`, `space`, `colour`.
std::string agreementJson(const rtf::AttributedText& text);

} // namespace corvellane
