#include "pack/Checksum.h"

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

void ChecksumBeside::add(Block bytes)
{
    lane_.add([this, bytes = std::move(bytes)] { checksum_.add(bytes.view()); });
}

std::future<std::string> ChecksumBeside::take()
{
    const auto sum = std::make_shared<std::promise<std::string>>();
    lane_.add([this, sum] { sum->set_value(checksum_.take()); });
    return sum->get_future();
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
    readFile(file, [&](const Block& bytes) { checksum.add(bytes.view()); });
    return checksum.take();
}

} // namespace corvellane::pack
