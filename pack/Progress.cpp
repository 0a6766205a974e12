#include "pack/Progress.h"

#include "platform/posix/StreamConsole.h"

#include <algorithm>
#include <csignal>
#include <cstdio>

namespace corvellane::pack {
namespace {

volatile std::sig_atomic_t askedToEnd = 0;

void takeSignal(int signal)
{
    askedToEnd = signal;
}

} // namespace

void stopByProgress()
{
    for (const int signal : {SIGHUP, SIGINT, SIGTERM}) {
        // What whoever started this has it ignore stays ignored.
        if (std::signal(signal, &takeSignal) == SIG_IGN) {
            std::signal(signal, SIG_IGN);
        }
    }
}

Progress::Progress(std::uintmax_t all)
    : isShown_(isTerminal(stderr))
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
    if (askedToEnd != 0) {
        throw Stopped{askedToEnd};
    }
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
