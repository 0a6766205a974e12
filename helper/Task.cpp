#include "helper/Task.h"

#include <algorithm>
#include <array>

namespace corvellane::runner {
namespace {

struct TakesAway {
    bool operator()(const Remove& /*command*/) const { return true; }
    bool operator()(const Unlink& /*command*/) const { return true; }
    bool operator()(const RemoveFolders& /*command*/) const { return true; }
    bool operator()(const auto& /*command*/) const { return false; }
};

} // namespace

std::optional<Task> taskWith(std::string_view word)
{
    constexpr std::array tasks{Task::installation, Task::removal};
    const auto* const task = std::ranges::find(tasks, word, &wordFor);
    return task == tasks.end() ? std::nullopt : std::optional(*task);
}

bool belongsTo(const InstallCommand& command, Task task)
{
    return task == Task::installation || std::visit(TakesAway(), command);
}

Task taskOf(const std::vector<std::string>& commands)
{
    const bool isRemoval = std::ranges::all_of(commands, [](const std::string& text) {
        const auto command = parseCommand(text);
        return text.empty() || (command && belongsTo(*command, Task::removal));
    });
    return isRemoval ? Task::removal : Task::installation;
}

} // namespace corvellane::runner
