#pragma once

#include <string>
#include <vector>

namespace corvellane::pack {

/// Where a program lies that `PATH` leads to. Throws std::runtime_error, which says what to install, where there is
/// none.
std::string pathOf(const std::string& program, const std::string& package);

/// What a program prints, the first of the words by its path, with HOME as this has it unless `environment` says
/// otherwise. Throws std::runtime_error with its errors where it fails.
std::string outputOf(const std::vector<std::string>& words, const std::vector<std::string>& environment = {});

} // namespace corvellane::pack
