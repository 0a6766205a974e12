#pragma once

#include <string>
#include <string_view>

namespace corvellane::rtf {

/// A font's name taken apart: "Helvetica-BoldOblique" is Helvetica, bold and italic.
struct FontFace {
    std::string family;
    bool bold = false;
    bool italic = false;
};

/// Takes apart the name of a face as PostScript writes it; a name that is none is the family as it stands.
FontFace fontFaceOf(std::string_view name);

/// The family without the mark of a character set that old systems wrote after it: "Arial CYR" is Arial.
std::string_view withoutCharsetMark(std::string_view family);

} // namespace corvellane::rtf
