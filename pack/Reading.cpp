#include "pack/Reading.h"

#include <fstream>
#include <stdexcept>

namespace corvellane::pack {

void readFile(const std::string& file, const std::function<void(Block)>& take, std::streamoff begin)
{
    constexpr std::size_t most = std::size_t{1} << 18U;
    std::ifstream stream(file, std::ios::binary);
    stream.seekg(begin);
    while (stream) {
        const auto block = std::make_shared<std::string>(most, '\0');
        stream.read(block->data(), static_cast<std::streamsize>(most));
        block->resize(static_cast<std::size_t>(stream.gcount()));
        take(block);
    }
    if (!stream.eof()) {
        throw std::runtime_error("“" + file + "” cannot be read");
    }
}

std::string textOf(const std::string& file)
{
    std::string text;
    readFile(file, [&](const Block& bytes) { text += *bytes; });
    return text;
}

std::string lineOf(const std::string& file)
{
    const std::string text = textOf(file);
    return text.substr(0, text.find('\n'));
}

} // namespace corvellane::pack
