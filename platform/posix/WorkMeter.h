#pragma once

#include "base/WorkerThread.h"
#include "platform/Progress.h"

#include <atomic>
#include <chrono>
#include <ctime>
#include <mutex>
#include <optional>

namespace corvellane {

/// Measures how far an installation's script has come: a copy, `cp -R -f "SOURCE" "TARGET"`, counts by the bytes of its
/// source, and as done by those of the files at its target that have changed since it began; any other command counts a
/// little. Folders are looked at only when somebody asks, and by a thread of its own.
class WorkMeter : public Progress {
public:
    WorkMeter() = default;
    WorkMeter(const WorkMeter&) = delete;
    WorkMeter& operator=(const WorkMeter&) = delete;
    ~WorkMeter() override;

    void begin(const std::vector<std::string>& commands) override;
    void start(std::size_t index) override;
    void end() override;

    /// The part of the work that is done, from 0 to 1, which only grows; absent while no script runs that has commands
    /// with administrator privileges. Returns at once, with what is known: ask a few times a second. Any thread.
    std::optional<double> partDone();

private:
    using Clock = std::chrono::steady_clock;

    struct Work {
        /// Where a copy comes from, and where it goes to; empty for any other command.
        std::string source;
        std::string target;
        /// Absent until the source has been looked at.
        std::optional<double> weight;
    };

    static Work workOf(const std::string& command);
    double partKnown() const;
    void look(unsigned run);
    double bytesBelow(const std::string& folder, std::time_t since, unsigned run) const;

    std::mutex mutex_;
    std::vector<Work> works_;
    std::size_t current_ = 0;
    std::time_t startOfCurrent_ = 0;
    double writtenByCurrent_ = 0;
    double greatestPart_ = 0;
    bool isLooking_ = false;
    Clock::time_point nextLook_;
    /// Another one with every script; looks for an earlier one end early.
    std::atomic<unsigned> run_ = 0;
    WorkerThread looker_;
};

} // namespace corvellane
