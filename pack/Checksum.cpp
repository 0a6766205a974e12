#include "pack/Checksum.h"

#include "pack/Reading.h"

#include <array>
#include <cstdint>
#include <utility>

namespace corvellane::pack {

Checksum::Checksum()
{
    sha256_init(&state_);
}

void Checksum::add(std::string_view bytes)
{
    sha256_update(&state_, bytes.size(), reinterpret_cast<const std::uint8_t*>(bytes.data()));
}

std::string Checksum::take()
{
    std::array<std::uint8_t, SHA256_DIGEST_SIZE> sum{};
    sha256_digest(&state_, sum.size(), sum.data());
    std::string digits;
    for (const unsigned byte : sum) {
        digits += "0123456789abcdef"[byte >> 4U];
        digits += "0123456789abcdef"[byte & 15U];
    }
    return digits;
}

void ChecksumBeside::add(std::string_view bytes)
{
    constexpr std::size_t enough = std::size_t{2} << 20U;
    coming_ += bytes;
    if (coming_.size() >= enough) {
        startWork();
    }
}

std::string ChecksumBeside::take()
{
    startWork();
    work_.get();
    return checksum_.take();
}

void ChecksumBeside::startWork()
{
    if (work_.valid()) {
        work_.get();
    }
    std::swap(coming_, inWork_);
    coming_.clear();
    work_ = std::async([this] { checksum_.add(inWork_); });
}

std::string checksumOf(std::string_view text)
{
    Checksum checksum;
    checksum.add(text);
    return checksum.take();
}

std::string checksumOfFile(const std::string& file)
{
    Checksum checksum;
    readFile(file, [&](std::string_view bytes) { checksum.add(bytes); });
    return checksum.take();
}

} // namespace corvellane::pack
