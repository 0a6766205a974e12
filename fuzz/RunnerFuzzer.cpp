// Reads any bytes as the command runner reads its requests and the commands in them, and as the installer reads its
// replies.

#include "helper/InstallFolders.h"
#include "helper/RunnerMessages.h"

#include <algorithm>
#include <cstdlib>
#include <functional>

namespace {

using namespace corvellane::runner;

/// Hands out the fuzzer's bytes, never more than there are.
class Input {
public:
    explicit Input(std::string_view bytes)
        : rest_(bytes)
    {
    }

    bool operator()(char* place, std::size_t size)
    {
        if (size > rest_.size()) {
            return false;
        }
        std::copy_n(rest_.data(), size, place);
        rest_.remove_prefix(size);
        return true;
    }

private:
    std::string_view rest_;
};

void expect(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

std::string quoted(std::string_view text)
{
    std::string result = "\"";
    for (const char character : text) {
        if (std::string_view("\\\"$`").find(character) != std::string_view::npos) {
            result += '\\';
        }
        result += character;
    }
    return result + '"';
}

/// Writes a command as the only text that can mean it; of an echoed text, only the end.
struct Written {
    std::string operator()(const MakeFolder& command) const { return "mkdir -p " + quoted(command.path); }
    std::string operator()(const Copy& command) const
    {
        return "cp -R -f " + quoted(command.source) + " " + quoted(command.folder);
    }
    std::string operator()(const Remove& command) const { return "rm -R -f " + quoted(command.path); }
    std::string operator()(const Link& command) const
    {
        return "ln -f -h -s " + quoted(command.target) + " " + quoted(command.link);
    }
    std::string operator()(const WriteText& command) const { return " > " + quoted(command.path); }
    std::string operator()(const HandOver& command) const { return "chown -R $USER " + quoted(command.path); }
    std::string operator()(const Unlink& command) const
    {
        const std::string link = quoted(command.link);
        return "[ \"$(readlink -n " + link + ")\" != " + quoted(command.target) + " ] || rm -f " + link;
    }
    std::string operator()(const RemoveFolders& command) const { return "rmdir -p " + quoted(command.path); }
};

void expectOneMeaning(std::string_view text)
{
    static const InstallFolders folders = installFolders("", "/home/user", "/opt/products");
    const auto command = parseCommand(text);
    expect(!command || text.ends_with(std::visit(Written(), *command)));
    const auto [allowed, refusal] = readCommand(text, folders);
    expect(allowed.has_value() == refusal.empty() && (command || !allowed));
    expect(!allowed || writtenPath(*allowed).starts_with('/'));
    expect(!allowed || (writtenPath(*allowed) + "/").find("/../") == std::string::npos);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    std::string written;
    const auto write = [&](std::string_view sent) { written += sent; };
    expectOneMeaning(bytes);
    Input input(bytes);
    while (const auto command = readRequest(std::ref(input))) {
        expect(command->size() <= longestText && command->find('\0') == std::string::npos);
        expectOneMeaning(*command);
        writeText(*command, write);
    }
    expect(bytes.starts_with(written));
    written.clear();
    input = Input(bytes);
    while (const auto reply = readReply(std::ref(input))) {
        writeReply(*reply, write);
    }
    expect(bytes.starts_with(written));
    return 0;
}
