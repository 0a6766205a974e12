#include "pack/Reading.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

namespace corvellane::pack {

// Its bytes are what is read or copied next: nothing is there before.
Block::Block(std::size_t size)
    : bytes_(std::make_shared_for_overwrite<char[]>(size)) // NOLINT(modernize-avoid-c-arrays): of any size
    , size_(size)
{
}

Block::Block(std::string_view bytes)
    : Block(bytes.size())
{
    std::ranges::copy(bytes, bytes_.get());
}

Block nextBlock(std::istream& stream)
{
    constexpr std::size_t most = std::size_t{1} << 18U;
    Block block(most);
    stream.read(block.bytes_.get(), static_cast<std::streamsize>(most));
    block.size_ = static_cast<std::size_t>(stream.gcount());
    return block;
}

void readFile(const std::string& file, const std::function<void(const Block&)>& take)
{
    std::ifstream stream(file, std::ios::binary);
    while (stream) {
        take(nextBlock(stream));
    }
    if (!stream.eof()) {
        throw std::runtime_error("“" + file + "” cannot be read");
    }
}

std::string textOf(const std::string& file)
{
    std::string text;
    readFile(file, [&](const Block& bytes) { text += bytes.view(); });
    return text;
}

std::string lineOf(const std::string& file)
{
    const std::string text = textOf(file);
    return text.substr(0, text.find('\n'));
}

} // namespace corvellane::pack
