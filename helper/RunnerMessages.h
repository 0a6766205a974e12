#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

/// What the command runner and the installer say to each other. The runner says `up` when it is up. From then on a
/// request is one command of an installation, without NUL, and the reply to it the exit status, then what the command
/// wrote to standard output and to standard error. A number is four bytes, the highest first; a text is its length in
/// bytes and the bytes, at most `longestText`. Whatever breaks these rules ends the conversation.
///
/// `Read` is called with a place and a number of bytes to put there, and says whether it could; `Write` is called with
/// the bytes to send.
namespace corvellane::runner {

constexpr std::string_view up = "corvellane-command-runner 2\n";
constexpr std::size_t longestText = std::size_t{1} << 20U;

struct Reply {
    int status = 0;
    std::string output;
    std::string errors;
};

template <typename Read>
std::optional<std::uint32_t> readNumber(Read read)
{
    std::array<unsigned char, 4> bytes{};
    if (!read(reinterpret_cast<char*>(bytes.data()), bytes.size())) {
        return std::nullopt;
    }
    std::uint32_t number = 0;
    for (const unsigned char byte : bytes) {
        number = number << 8U | byte;
    }
    return number;
}

template <typename Read>
std::optional<std::string> readText(Read read)
{
    const auto size = readNumber(read);
    if (!size || *size > longestText) {
        return std::nullopt;
    }
    std::string text(*size, '\0');
    return read(text.data(), text.size()) ? std::optional(std::move(text)) : std::nullopt;
}

template <typename Write>
void writeNumber(std::uint32_t number, Write write)
{
    const std::array<char, 4> bytes{static_cast<char>(number >> 24U), static_cast<char>(number >> 16U),
        static_cast<char>(number >> 8U), static_cast<char>(number)};
    write(std::string_view(bytes.data(), bytes.size()));
}

template <typename Write>
void writeText(std::string_view text, Write write)
{
    writeNumber(static_cast<std::uint32_t>(text.size()), write);
    write(text);
}

/// Absent at the end of the conversation.
template <typename Read>
std::optional<std::string> readRequest(Read read)
{
    auto command = readText(read);
    return command && command->find('\0') == std::string::npos ? std::move(command) : std::nullopt;
}

template <typename Read>
std::optional<Reply> readReply(Read read)
{
    const auto status = readNumber(read);
    auto output = status ? readText(read) : std::nullopt;
    auto errors = output ? readText(read) : std::nullopt;
    if (!errors) {
        return std::nullopt;
    }
    return Reply{static_cast<int>(*status), *std::move(output), *std::move(errors)};
}

template <typename Write>
void writeReply(const Reply& reply, Write write)
{
    writeNumber(static_cast<std::uint32_t>(reply.status), write);
    writeText(reply.output, write);
    writeText(reply.errors, write);
}

} // namespace corvellane::runner
