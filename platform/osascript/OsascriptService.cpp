#include "platform/osascript/OsascriptService.h"

#include "platform/posix/ChildProcess.h"

#include <poll.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <string_view>
#include <utility>

extern char** environ; // NOLINT(readability-redundant-declaration): not every system's headers have it

namespace corvellane {
namespace {

struct Streams {
    Pipe input = makePipe();
    Pipe output = makePipe();
    Pipe errors = makePipe();
    std::string outputText;
    std::string errorText;
};

Expected<pid_t> start(const std::string& command, Streams& streams)
{
    Invocation invocation{{command, "-"}, {}};
    for (char** variable = environ; *variable != nullptr; ++variable) {
        invocation.environment.emplace_back(*variable);
    }
    auto child = startChild(
        invocation, {streams.input.readEnd.get(), streams.output.writeEnd.get(), streams.errors.writeEnd.get()});
    streams.input.readEnd.close();
    streams.output.writeEnd.close();
    streams.errors.writeEnd.close();
    return child;
}

void feed(FileDescriptor& stream, std::string_view& rest)
{
    const ssize_t count = write(stream.get(), rest.data(), std::min<std::size_t>(rest.size(), PIPE_BUF));
    rest.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    if (rest.empty() || (count < 0 && errno != EINTR)) {
        stream.close();
    }
}

void converse(Streams& streams, std::string_view source)
{
    auto& [input, output, errors, outputText, errorText] = streams;
    while (output.readEnd.isOpen() || errors.readEnd.isOpen()) {
        std::array<pollfd, 3> events{
            {{input.writeEnd.get(), POLLOUT, 0}, {output.readEnd.get(), POLLIN, 0}, {errors.readEnd.get(), POLLIN, 0}}};
        poll(events.data(), events.size(), -1);
        if (events[0].revents != 0) {
            feed(input.writeEnd, source);
        }
        drain(output.readEnd, outputText);
        drain(errors.readEnd, errorText);
    }
}

std::string withoutLastLineFeed(std::string text)
{
    if (text.ends_with('\n')) {
        text.pop_back();
    }
    return text;
}

class OsascriptScript : public Script {
public:
    OsascriptScript(std::string command, std::string source)
        : command_(std::move(command))
        , source_(std::move(source))
    {
    }

    ScriptExecution execute() override
    {
        Streams streams;
        const auto child = start(command_, streams);
        if (!child) {
            return {std::nullopt, command_ + " could not be started"};
        }
        converse(streams, source_);
        if (exitStatusOf(*child) != 0) {
            return {std::nullopt, withoutLastLineFeed(std::move(streams.errorText))};
        }
        if (streams.outputText.empty()) {
            return {ScriptExecution::Value{}, std::nullopt};
        }
        return {ScriptExecution::Value{withoutLastLineFeed(std::move(streams.outputText))}, std::nullopt};
    }

private:
    std::string command_;
    std::string source_;
};

} // namespace

std::unique_ptr<Script> OsascriptService::create(std::string source)
{
    return std::make_unique<OsascriptScript>(command_, std::move(source));
}

} // namespace corvellane
