#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace corvellane::pack {

/// Thrown where the program is asked to end.
struct Stopped {
    /// The number of the signal.
    int signal = 0;
};

/// From now on, who asks the program to end is heard by the progress, and what is half made is cleared away first.
void stopByProgress();

/// How far it is: a line on standard error, where that is a terminal and it takes longer than a second. The line is
/// gone at the end.
class Progress {
public:
    /// In bytes, of everything.
    explicit Progress(std::uintmax_t all);
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress();

    /// These throw Stopped.
    void begin(const std::string& what);
    void add(std::uintmax_t bytes);
    /// Shows it, where it is time to; for what has no bytes to tell of.
    void show();

private:
    bool isShown_;
    std::uintmax_t all_;
    std::uintmax_t done_ = 0;
    std::string what_;
    std::string shown_;
    std::chrono::steady_clock::time_point begin_ = std::chrono::steady_clock::now();
};

} // namespace corvellane::pack
