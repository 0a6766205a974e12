#pragma once

#include "cli/Installation.h"
#include "cli/ScriptRun.h"
#include "platform/Files.h"
#include "platform/Resources.h"

#include <optional>
#include <string>
#include <vector>

namespace corvellane {

/// Why nothing is done, and what to do about it.
struct Refusal {
    Status status = Status::failed;
    std::string message;
};

/// Of an installer in which something is missing or cannot be read, as the message says.
Refusal notWhole(const std::string& message);

/// Fills in the order's elements: those of the products of these names, or of all when there is no name.
std::optional<Refusal> chooseElements(
    Order& order, const Resources& resources, const Files& files, const std::vector<std::string>& names);

/// Fills in the order's persons: the users of these names, each once, or whoever calls when there is no name. What
/// changes something for another user is root's alone.
std::optional<Refusal> choosePersons(Order& order, const std::vector<std::string>& names, bool changes);

/// Of an order that writes into homes.
std::optional<Refusal> whyHomeless(const Order& order);

std::optional<Refusal> whyWithoutLicense(const Resources& resources);

} // namespace corvellane
