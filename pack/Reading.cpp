#include "pack/Reading.h"

#include <fstream>
#include <stdexcept>
#include <vector>

namespace corvellane::pack {

void readFile(const std::string& file, const std::function<void(std::string_view)>& take, std::streamoff begin)
{
    std::ifstream stream(file, std::ios::binary);
    stream.seekg(begin);
    std::vector<char> block(std::size_t{1} << 18U);
    while (stream) {
        stream.read(block.data(), static_cast<std::streamsize>(block.size()));
        take({block.data(), static_cast<std::size_t>(stream.gcount())});
    }
    if (!stream.eof()) {
        throw std::runtime_error("“" + file + "” cannot be read");
    }
}

std::string textOf(const std::string& file)
{
    std::string text;
    readFile(file, [&](std::string_view bytes) { text += bytes; });
    return text;
}

std::string lineOf(const std::string& file)
{
    const std::string text = textOf(file);
    return text.substr(0, text.find('\n'));
}

} // namespace corvellane::pack
