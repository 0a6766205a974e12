#pragma once

#include <cstdint>

/// Stands in for the header of that name where its system is not at hand.
extern "C" int _NSGetExecutablePath(char* path, std::uint32_t* size); // NOLINT(readability-identifier-naming)
