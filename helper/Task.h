#pragma once

#include "helper/InstallCommand.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvellane::runner {

/// What rights are asked for. A person who agrees to a removal has not agreed to an installation; polkit knows the two
/// by the word that the runner is started with.
enum class Task { installation, removal };

constexpr std::string_view wordFor(Task task)
{
    return task == Task::installation ? "install" : "remove";
}

/// Absent for any other word.
std::optional<Task> taskWith(std::string_view word);

/// Whether the command has a place in the task. A removal only takes away; an installation may do that as well.
bool belongsTo(const InstallCommand& command, Task task);

/// The least that these commands need; empty ones are passed over.
Task taskOf(const std::vector<std::string>& commands);

} // namespace corvellane::runner
