#include "rtf/Pictures.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <utility>

namespace corvellane::rtf {
namespace {

constexpr std::size_t bitmapFileHeader = 14;
constexpr std::int32_t largestScale = 1000;
constexpr Twips longestSide = 22 * 1440;

/// Unsigned numbers of a file, 0 beyond its end.
class Numbers {
public:
    explicit Numbers(std::string_view bytes)
        : bytes_(bytes)
    {
    }

    std::uint32_t byte(std::size_t place) const
    {
        return place < bytes_.size() ? static_cast<unsigned char>(bytes_[place]) : 0;
    }
    std::uint32_t big16(std::size_t place) const { return byte(place) << 8U | byte(place + 1); }
    std::uint32_t big32(std::size_t place) const { return big16(place) << 16U | big16(place + 2); }
    std::uint32_t little16(std::size_t place) const { return byte(place) | byte(place + 1) << 8U; }
    std::uint32_t little32(std::size_t place) const { return little16(place) | little16(place + 2) << 16U; }

private:
    std::string_view bytes_;
};

/// The frame's size stands in the first marker of the kind SOF (ITU-T T.81, B.2.2).
std::uint64_t pixelsOfJpeg(std::string_view bytes)
{
    const Numbers numbers(bytes);
    std::size_t place = 2;
    while (numbers.byte(place) == 0xFF) {
        const std::uint32_t marker = numbers.byte(place + 1);
        const bool isFrame = marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
        if (isFrame) {
            return std::uint64_t{numbers.big16(place + 5)} * numbers.big16(place + 7);
        }
        place += marker == 0xFF ? 1 : 2 + std::max<std::size_t>(numbers.big16(place + 2), 2);
    }
    return 0;
}

std::uint64_t pixelsOfBitmap(std::string_view bytes)
{
    const Numbers numbers(bytes);
    const auto side
        = [&](std::size_t place) { return std::abs(std::int64_t{static_cast<std::int32_t>(numbers.little32(place))}); };
    return static_cast<std::uint64_t>(side(bitmapFileHeader + 4))
        * static_cast<std::uint64_t>(side(bitmapFileHeader + 8));
}

std::string little32(std::uint32_t number)
{
    std::string bytes;
    for (unsigned shift = 0; shift < 32; shift += 8) {
        bytes += static_cast<char>(number >> shift);
    }
    return bytes;
}

/// A bitmap without the header that a file of its kind begins with gets one.
std::string bitmapFile(const std::string& bytes)
{
    const Numbers numbers(bytes);
    const std::uint32_t bits = numbers.little16(14);
    const std::uint32_t used = numbers.little32(32);
    const std::uint32_t usual = bits <= 8 ? 1U << bits : 0;
    const std::uint32_t colors = used != 0 ? std::min(used, 256U) : usual;
    const std::uint32_t masks = numbers.little32(16) == 3 && numbers.little32(0) == 40 ? 12 : 0;
    const std::uint32_t pixels
        = static_cast<std::uint32_t>(bitmapFileHeader) + numbers.little32(0) + (colors * 4) + masks;
    const auto size = static_cast<std::uint32_t>(bitmapFileHeader + bytes.size());
    return "BM" + little32(size) + little32(0) + little32(pixels) + bytes;
}

Twips scaled(Twips goal, std::int32_t scale)
{
    const std::int64_t percent = std::clamp(scale, 1, largestScale);
    return static_cast<Twips>(std::clamp<std::int64_t>(std::int64_t{goal} * percent / 100, 0, longestSide));
}

} // namespace

std::uint64_t pixelsOf(Picture::Kind kind, std::string_view bytes)
{
    switch (kind) {
    case Picture::Kind::png:
        return bytes.starts_with("\x89PNG") ? std::uint64_t{Numbers(bytes).big32(16)} * Numbers(bytes).big32(20) : 0;
    case Picture::Kind::jpeg:
        return bytes.starts_with("\xFF\xD8") ? pixelsOfJpeg(bytes) : 0;
    case Picture::Kind::bitmap:
        return pixelsOfBitmap(bytes);
    }
    return 0;
}

void Pictures::begin()
{
    Pictures next;
    next.pixels_ = pixels_;
    next.fillsShape_ = propertyName == fillOfShape;
    *this = std::move(next);
}

void Pictures::addDigits(std::string_view digits)
{
    for (const char digit : digits) {
        const auto place = std::string_view("0123456789abcdef0123456789ABCDEF").find(digit);
        if (place == std::string_view::npos) {
            continue;
        }
        const auto value = static_cast<int>(place % 16);
        if (highDigit_ < 0) {
            highDigit_ = value;
        } else {
            bytes_ += static_cast<char>((std::exchange(highDigit_, -1) * 16) + value);
        }
    }
}

std::optional<Picture> Pictures::take()
{
    if (!kind_) {
        return std::nullopt;
    }
    std::string bytes = *kind_ == Picture::Kind::bitmap ? bitmapFile(bytes_) : std::exchange(bytes_, {});
    const std::uint64_t pixels = pixelsOf(*kind_, bytes);
    if (pixels == 0 || pixels > mostPixels || pixels_ + pixels > 2 * mostPixels) {
        return std::nullopt;
    }
    pixels_ += pixels;
    shapeIsShown = fillsShape_;
    bytes.shrink_to_fit();
    return Picture{.kind = *kind_,
        .bytes = std::move(bytes),
        .width = scaled(goalWidth, scaleX),
        .height = scaled(goalHeight, scaleY)};
}

} // namespace corvellane::rtf
