#include "platform/linux/TerminalAgent.h"

#include "platform/linux/IsolatedChild.h"
#include "platform/posix/FileDescriptor.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

namespace corvellane {
namespace {

/// A program in the background would be stopped at the first look at the terminal.
bool hasTerminal()
{
    const FileDescriptor terminal(open("/dev/tty", O_RDWR | O_CLOEXEC | O_NOCTTY));
    return terminal.isOpen() && tcgetpgrp(terminal.get()) == getpgrp();
}

/// What tells the language.
std::vector<std::string> languages()
{
    std::vector<std::string> languages;
    for (const char* const name : {"LANG", "LANGUAGE", "LC_ALL", "LC_MESSAGES"}) {
        if (const char* const value = std::getenv(name)) {
            languages.push_back(std::string(name) + "=" + value);
        }
    }
    return languages;
}

} // namespace

TerminalAgent::TerminalAgent()
{
    if (!hasTerminal()) {
        return;
    }
    Pipe known = makePipe();
    const FileDescriptor nothing(open("/dev/null", O_RDWR | O_CLOEXEC));
    const auto agent = startIsolatedChild(
        {{"/usr/bin/pkttyagent", "--process", std::to_string(getpid()), "--notify-fd", "1"}, languages()},
        {nothing.get(), known.writeEnd.get(), nothing.get()});
    agent_ = agent.value_or(-1);
    known.writeEnd.close();
    // Closed by the agent when polkit knows it, and when it ends.
    char byte = 0;
    while (agent_ > 0 && read(known.readEnd.get(), &byte, 1) > 0) { }
}

TerminalAgent::~TerminalAgent()
{
    if (agent_ > 0) {
        kill(agent_, SIGTERM);
        exitStatusOf(agent_);
    }
}

} // namespace corvellane
