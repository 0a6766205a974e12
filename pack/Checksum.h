#pragma once

#include "pack/Lane.h"
#include "pack/Reading.h"

#include <nettle/sha2.h>

#include <future>
#include <string>
#include <string_view>

namespace corvellane::pack {

/// The SHA-256 (FIPS 180-4) of bytes that come one after the other.
class Checksum {
public:
    Checksum();

    void add(std::string_view bytes);
    /// In hexadecimal, of all that was added since the last call of this.
    std::string take();

private:
    sha256_ctx state_{};
};

/// The same, worked out by another thread while more bytes come.
class ChecksumBeside {
public:
    void add(Block bytes);
    /// Returns at once; of all that was added since the last call of this.
    std::future<std::string> take();

private:
    Checksum checksum_;
    Lane lane_;
};

std::string checksumOf(std::string_view text);
/// Throws std::runtime_error where the file cannot be read.
std::string checksumOfFile(const std::string& file);

} // namespace corvellane::pack
