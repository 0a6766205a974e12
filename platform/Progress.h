#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace corvellane {

/// Is told how far a script has come. Called on the thread that runs the script, one script at a time; takes no time.
class Progress {
public:
    virtual ~Progress() = default;

    /// A script is about to run: the texts of all its commands with administrator privileges, in their order. A text
    /// that is known only when its command runs is empty.
    virtual void begin(const std::vector<std::string>& commands) = 0;

    /// The command at `index` of those is about to run. Some may never be.
    virtual void start(std::size_t index) = 0;

    /// The script has ended, in whatever way.
    virtual void end() = 0;
};

} // namespace corvellane
