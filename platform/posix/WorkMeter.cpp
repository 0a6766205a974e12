#include "platform/posix/WorkMeter.h"

#include "base/PathNames.h"

#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <limits>
#include <string_view>

namespace corvellane {
namespace {

/// What a command counts besides what it copies, in bytes: the time that starting a shell takes.
constexpr double weightOfACommand = 500'000;
/// In seconds: times of files are cut off, on some file systems to even seconds.
constexpr std::time_t coarsestTime = 2;
/// Times as long as a look took, so that looking takes two hundredths of a processor at most.
constexpr int leastPauseInLooks = 50;

/// Takes a shell's text in double quotes and what separates it from the next off the front; empty when there is none.
std::string takeQuoted(std::string_view& rest)
{
    std::string text;
    if (!rest.starts_with('"')) {
        return text;
    }
    std::size_t at = 1;
    for (; at < rest.size() && rest[at] != '"'; ++at) {
        at += rest[at] == '\\' ? 1 : 0;
        text += rest.substr(at, 1);
    }
    rest.remove_prefix(std::min(rest.size(), at + 2));
    return text;
}

} // namespace

WorkMeter::~WorkMeter()
{
    ++run_;
}

WorkMeter::Work WorkMeter::workOf(const std::string& command)
{
    constexpr std::string_view copy = "cp -R -f ";
    if (!command.starts_with(copy)) {
        return {{}, {}, weightOfACommand};
    }
    std::string_view rest = std::string_view(command).substr(copy.size());
    std::string source = takeQuoted(rest);
    std::string target = takeQuoted(rest);
    if (!source.ends_with('/')) {
        (target += '/') += lastPathComponent(source);
    }
    return {std::move(source), std::move(target), std::nullopt};
}

void WorkMeter::begin(const std::vector<std::string>& commands)
{
    end();
    const std::lock_guard lock(mutex_);
    std::ranges::transform(commands, std::back_inserter(works_), &workOf);
    current_ = 0;
    startOfCurrent_ = std::numeric_limits<std::time_t>::max(); // nothing counts as written before it starts
    writtenByCurrent_ = 0;
    greatestPart_ = 0;
    nextLook_ = {};
}

void WorkMeter::start(std::size_t index)
{
    const std::lock_guard lock(mutex_);
    current_ = index;
    startOfCurrent_ = std::time(nullptr) - coarsestTime;
    writtenByCurrent_ = 0;
}

void WorkMeter::end()
{
    const std::lock_guard lock(mutex_);
    ++run_;
    works_.clear();
}

std::optional<double> WorkMeter::partDone()
{
    std::unique_lock lock(mutex_);
    if (!works_.empty() && !isLooking_ && Clock::now() >= nextLook_) {
        isLooking_ = true;
        lock.unlock();
        looker_.submit([this, run = run_.load()] { look(run); });
        lock.lock();
    }
    if (works_.empty()) {
        return std::nullopt;
    }
    greatestPart_ = std::max(greatestPart_, partKnown());
    return greatestPart_;
}

double WorkMeter::partKnown() const
{
    double all = 0;
    double done = 0;
    for (std::size_t index = 0; index < works_.size(); ++index) {
        const auto weight = works_[index].weight;
        if (!weight) {
            return 0;
        }
        all += *weight;
        if (index <= current_) {
            done += index == current_ ? std::min(writtenByCurrent_, *weight) : *weight;
        }
    }
    return done / all;
}

/// Weighs what has not been weighed yet, and looks how far the present copy has come.
void WorkMeter::look(unsigned run)
{
    std::unique_lock lock(mutex_);
    std::vector<Work> works = works_;
    const std::size_t current = current_;
    const std::time_t since = startOfCurrent_;
    lock.unlock();
    for (Work& work : works) {
        if (!work.weight) {
            work.weight = weightOfACommand + bytesBelow(work.source, 0, run);
        }
    }
    const auto begin = Clock::now(); // weighing is done once, and is followed by no pause of its own
    const double written = works.empty() ? 0 : bytesBelow(works[current].target, since, run);
    lock.lock();
    isLooking_ = false;
    nextLook_ = Clock::now() + leastPauseInLooks * (Clock::now() - begin);
    if (run == run_) {
        works_ = std::move(works);
        writtenByCurrent_ = current == current_ ? written : 0;
    }
}

/// Of the files below a folder, those that have been written to since then; ends early when that run has ended.
double WorkMeter::bytesBelow(const std::string& folder, std::time_t since, unsigned run) const
{
    namespace fs = std::filesystem;
    double bytes = 0;
    std::error_code error;
    fs::recursive_directory_iterator entry(folder, fs::directory_options::skip_permission_denied, error);
    for (; !error && run == run_ && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
        struct stat status{};
        if (lstat(entry->path().c_str(), &status) == 0 && S_ISREG(status.st_mode) && status.st_mtime >= since) {
            bytes += static_cast<double>(status.st_size);
        }
    }
    return bytes;
}

} // namespace corvellane
