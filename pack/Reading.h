#pragma once

#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>

namespace corvellane::pack {

/// Some of the bytes of a file or of a text, which several threads may look at.
class Block {
public:
    explicit Block(std::string_view bytes);

    /// As long as this or a copy of it lives.
    std::string_view view() const { return {bytes_.get(), size_}; }

private:
    friend Block nextBlock(std::istream& stream);
    explicit Block(std::size_t size);

    std::shared_ptr<char[]> bytes_; // NOLINT(modernize-avoid-c-arrays): of any size
    std::size_t size_;
};

/// Gives the bytes of a file one after the other. Throws std::runtime_error where it cannot be read.
void readFile(const std::string& file, const std::function<void(const Block&)>& take);

/// The whole text of a file. Throws std::runtime_error.
std::string textOf(const std::string& file);

/// Its first line, without the line feed. Throws std::runtime_error.
std::string lineOf(const std::string& file);

} // namespace corvellane::pack
