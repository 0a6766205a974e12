#pragma once

#include "pack/Lane.h"
#include "pack/Reading.h"

#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>

namespace corvellane::pack {

/// A file that is written from its beginning to its end, by another thread while more of it comes. What fails is thrown
/// as std::system_error by `overwrite` or `close`.
class Output {
public:
    explicit Output(std::string file);

    void write(Block bytes);
    void write(std::string_view bytes);
    std::uintmax_t size() const { return size_; }
    /// Puts bytes in the place of as many that were written before.
    void overwrite(std::uintmax_t at, std::string_view bytes);
    /// What is written has reached the file then.
    void close();

private:
    void mustBeWell() const;

    std::string file_;
    std::ofstream stream_;
    std::uintmax_t size_ = 0;
    Lane lane_;
};

/// A file with this text.
void writeText(const std::string& file, const std::string& text);

} // namespace corvellane::pack
