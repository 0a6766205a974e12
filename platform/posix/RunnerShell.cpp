#include "platform/posix/RunnerShell.h"

#include "platform/posix/ChildProcess.h"

#include <sys/socket.h>

#include <cerrno>
#include <optional>
#include <string_view>

namespace corvellane {
namespace {

constexpr std::string_view upMessage = "corvellane-command-runner 1\n";

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

std::optional<std::string> receive(const FileDescriptor& channel, std::size_t size)
{
    std::string bytes(size, '\0');
    std::size_t received = 0;
    while (received < size) {
        const ssize_t count = recv(channel.get(), bytes.data() + received, size - received, 0);
        if (count == 0 || (count < 0 && errno != EINTR)) {
            return std::nullopt;
        }
        received += count < 0 ? 0 : static_cast<std::size_t>(count);
    }
    return bytes;
}

std::string asFourBytes(std::size_t number)
{
    return {static_cast<char>(number >> 24U), static_cast<char>(number >> 16U), static_cast<char>(number >> 8U),
        static_cast<char>(number)};
}

std::optional<std::size_t> receiveNumber(const FileDescriptor& channel)
{
    const auto bytes = receive(channel, 4);
    if (!bytes) {
        return std::nullopt;
    }
    std::size_t number = 0;
    for (const char byte : *bytes) {
        number = number << 8U | static_cast<unsigned char>(byte);
    }
    return number;
}

std::optional<std::string> receiveText(const FileDescriptor& channel)
{
    const auto size = receiveNumber(channel);
    if (!size || *size > mostKeptOfAStream) {
        return std::nullopt;
    }
    return receive(channel, *size);
}

} // namespace

RunnerShell::~RunnerShell()
{
    channel_.close();
    exitStatusOf(runner_);
}

std::variant<CommandResult, ScriptError> RunnerShell::run(const std::string& command)
{
    const bool sent = sendAll(channel_, asFourBytes(command.size()) + command);
    const auto status = sent ? receiveNumber(channel_) : std::nullopt;
    auto output = status ? receiveText(channel_) : std::nullopt;
    auto errors = output ? receiveText(channel_) : std::nullopt;
    if (!errors) {
        return ScriptError{"The program that runs commands with administrator rights has ended unexpectedly.",
            script_error::connectionInvalid};
    }
    return CommandResult{static_cast<int>(*status), *std::move(output), *std::move(errors)};
}

bool runnerComesUp(const FileDescriptor& channel)
{
    return receive(channel, upMessage.size()) == upMessage;
}

} // namespace corvellane
