#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvellane {

/// The colours that a picture in SVG paints with, sorted, each once: of fills, strokes and gradients, whether written
/// as attributes, as styles or in a style sheet; and black for shapes that name none. "#rrggbb" or a name; a picture
/// inside counts as the colour "image".
std::vector<std::string> coloursOf(std::string_view svg);

/// Whether the bytes are a picture in PNG (https://www.w3.org/TR/png-3/).
bool isPng(std::string_view bytes);

/// Whether parts of a picture in PNG can be transparent: it has an alpha channel, or a chunk for it.
bool hasTransparency(std::string_view png);

} // namespace corvellane
