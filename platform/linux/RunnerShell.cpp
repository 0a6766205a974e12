#include "platform/linux/RunnerShell.h"

#include "helper/RunnerMessages.h"
#include "platform/linux/ShellDialect.h"
#include "platform/posix/ChildProcess.h"
#include "platform/script/ErrorInformation.h"

#include <sys/socket.h>

#include <cerrno>

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

} // namespace

RunnerShell::~RunnerShell()
{
    channel_.close();
    exitStatusOf(runner_);
}

Expected<script::CommandResult> RunnerShell::run(const std::string& command)
{
    std::string request;
    runner::writeText(inBsdDialect(command), [&](std::string_view bytes) { request += bytes; });
    auto reply = sendAll(channel_, request)
        ? runner::readReply([this](char* bytes, std::size_t size) { return receiveAll(channel_, bytes, size); })
        : std::nullopt;
    if (!reply) {
        return Unexpected({"The program that runs commands with administrator rights has ended unexpectedly.",
            script::error_number::connectionInvalid});
    }
    return script::CommandResult{reply->status, std::move(reply->output), std::move(reply->errors)};
}

bool runnerComesUp(const FileDescriptor& channel)
{
    std::string message(runner::up.size(), '\0');
    return receiveAll(channel, message.data(), message.size()) && message == runner::up;
}

} // namespace corvellane
