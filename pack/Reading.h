#pragma once

#include <functional>
#include <ios>
#include <memory>
#include <string>

namespace corvellane::pack {

/// Some of the bytes of a file or of a text, which several threads may look at.
using Block = std::shared_ptr<const std::string>;

/// Gives the bytes of a file one after the other, from `begin` on. Throws std::runtime_error where it cannot be read.
void readFile(const std::string& file, const std::function<void(Block)>& take, std::streamoff begin = 0);

/// The whole text of a file. Throws std::runtime_error.
std::string textOf(const std::string& file);

/// Its first line, without the line feed. Throws std::runtime_error.
std::string lineOf(const std::string& file);

} // namespace corvellane::pack
