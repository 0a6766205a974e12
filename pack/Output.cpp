#include "pack/Output.h"

#include <cerrno>
#include <system_error>
#include <utility>

namespace corvellane::pack {

Output::Output(std::string file)
    : file_(std::move(file))
    , stream_(file_, std::ios::binary | std::ios::trunc)
{
    mustBeWell();
}

void Output::write(Block bytes)
{
    size_ += bytes.view().size();
    lane_.add([this, bytes = std::move(bytes)] {
        stream_.write(bytes.view().data(), static_cast<std::streamsize>(bytes.view().size()));
        mustBeWell();
    });
}

void Output::write(std::string_view bytes)
{
    write(Block(bytes));
}

void Output::overwrite(std::uintmax_t at, std::string_view bytes)
{
    lane_.wait();
    stream_.seekp(static_cast<std::streamoff>(at));
    stream_.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream_.seekp(0, std::ios::end);
    mustBeWell();
}

void Output::close()
{
    lane_.wait();
    stream_.close();
    mustBeWell();
}

void Output::mustBeWell() const
{
    if (!stream_) {
        throw std::system_error(errno, std::generic_category(), "“" + file_ + "” cannot be written");
    }
}

void writeText(const std::string& file, const std::string& text)
{
    Output output(file);
    output.write(text);
    output.close();
}

} // namespace corvellane::pack
