#pragma once

#include "rtf/AttributedText.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace corvellane::rtf {

/// Reads the pictures of a text, one after the other.
class Pictures {
public:
    /// More pixels than these are shown of no picture, and twice as many of all together.
    static constexpr std::uint64_t mostPixels = 8'000'000;
    /// The property of a shape that is the picture in it.
    static constexpr std::string_view fillOfShape = "pib";

    void begin();
    /// Digits in hexadecimal, as they stand in the file.
    void addDigits(std::string_view digits);
    void addBytes(std::string_view bytes) { bytes_ += bytes; }
    void setKind(Picture::Kind kind) { kind_ = kind; }

    /// In twips: the size to show the picture at, before it is scaled.
    Twips goalWidth = 0;
    Twips goalHeight = 0;
    /// Per cent.
    std::int32_t scaleX = 100;
    std::int32_t scaleY = 100;
    /// What stands for it where it cannot be shown, and the name of the property that is being read.
    std::string alternative;
    std::string propertyName;
    /// The last picture is shown, and fills a shape.
    bool shapeIsShown = false;

    /// The picture, where its kind is known and it is not too large.
    std::optional<Picture> take();

private:
    std::optional<Picture::Kind> kind_;
    bool fillsShape_ = false;
    std::string bytes_;
    int highDigit_ = -1;
    std::uint64_t pixels_ = 0;
};

/// The number of pixels that a picture says it has; 0 where it says none.
std::uint64_t pixelsOf(Picture::Kind kind, std::string_view bytes);

} // namespace corvellane::rtf
