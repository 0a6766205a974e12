#include "platform/linux/RunnerShell.h"

#include "helper/RunnerMessages.h"
#include "helper/Task.h"
#include "platform/linux/IsolatedChild.h"
#include "platform/script/ErrorInformation.h"

#include <sys/socket.h>

#include <array>
#include <cerrno>
#include <cstring>

namespace corvellane {
namespace {

bool sendAll(const FileDescriptor& channel, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = send(channel.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (count < 0 && errno != EINTR) {
            return false;
        }
        bytes.remove_prefix(count < 0 ? 0 : static_cast<std::size_t>(count));
    }
    return true;
}

bool receiveAll(const FileDescriptor& channel, char* bytes, std::size_t size)
{
    while (size > 0) {
        const ssize_t count = recv(channel.get(), bytes, size, 0);
        if (count == 0 || (count < 0 && errno != EINTR)) {
            return false;
        }
        const std::size_t received = count < 0 ? 0 : static_cast<std::size_t>(count);
        bytes += received;
        size -= received;
    }
    return true;
}

bool comesUp(const FileDescriptor& channel)
{
    std::string message(runner::up.size(), '\0');
    return receiveAll(channel, message.data(), message.size()) && message == runner::up;
}

struct Channel {
    FileDescriptor ours;
    FileDescriptor theirs;
};

Channel makeChannel()
{
    std::array<int, 2> ends{-1, -1};
    socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data());
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

} // namespace

RunnerShell::~RunnerShell()
{
    channel_.close();
    exitStatusOf(runner_);
}

Expected<script::CommandResult> RunnerShell::run(const std::string& command)
{
    std::string request;
    runner::writeText(command, [&](std::string_view bytes) { request += bytes; });
    auto reply = sendAll(channel_, request)
        ? runner::readReply([this](char* bytes, std::size_t size) { return receiveAll(channel_, bytes, size); })
        : std::nullopt;
    if (!reply) {
        return Unexpected({"The program that runs commands with administrator rights has ended unexpectedly.",
            script::error_number::connectionInvalid});
    }
    return script::CommandResult{reply->status, std::move(reply->output), std::move(reply->errors)};
}

std::vector<std::string> runnerWords(
    const std::string& runner, const std::string& products, const std::vector<std::string>& commands)
{
    const runner::Task task = runner::taskOf(commands);
    std::vector<std::string> words{runner, std::string(wordFor(task))};
    if (task == runner::Task::installation) {
        words.push_back(products);
    }
    return words;
}

Expected<std::shared_ptr<script::Shell>> startRunner(const Invocation& invocation, const ExplainEnd& explain)
{
    Channel channel = makeChannel();
    Pipe complaints = makePipe();
    if (!channel.ours.isOpen() || !complaints.readEnd.isOpen()) {
        return Unexpected(runnerCannotStart(std::strerror(errno)));
    }
    const auto child
        = startIsolatedChild(invocation, {channel.theirs.get(), channel.theirs.get(), complaints.writeEnd.get()});
    if (!child) {
        return Unexpected(runnerCannotStart(child.error().message));
    }
    channel.theirs.close();
    complaints.writeEnd.close();
    if (comesUp(channel.ours)) {
        return std::make_shared<RunnerShell>(std::move(channel.ours), *child);
    }
    channel.ours.close();
    const int status = exitStatusOf(*child);
    std::string complaint;
    drain(complaints.readEnd, complaint);
    return Unexpected(explain(status, complaint));
}

Failure runnerCannotStart(std::string reason)
{
    reason.erase(reason.find_last_not_of(" \n") + 1);
    return {"The program that runs commands with administrator rights could not be started."
            + (reason.empty() ? reason : " " + reason),
        script::error_number::eventFailed};
}

} // namespace corvellane
