#include "pack/Progress.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>

namespace corvellane::pack {

Progress::Progress(std::uintmax_t all)
    : isShown_(std::filesystem::is_character_file("/proc/self/fd/2"))
    , all_(std::max<std::uintmax_t>(all, 1))
{
}

Progress::~Progress()
{
    if (!shown_.empty()) {
        std::fputs("\r\33[K", stderr);
    }
}

void Progress::begin(const std::string& what)
{
    what_ = what;
    show();
}

void Progress::add(std::uintmax_t bytes)
{
    done_ += bytes;
    show();
}

void Progress::show()
{
    if (!isShown_ || std::chrono::steady_clock::now() - begin_ < std::chrono::seconds(1)) {
        return;
    }
    const std::string line = std::to_string(std::min<std::uintmax_t>(done_ * 100 / all_, 100)) + " %  " + what_;
    if (line != shown_) {
        std::fprintf(stderr, "\r\33[K%s", line.c_str());
        shown_ = line;
    }
}

} // namespace corvellane::pack
