#include "platform/linux/ShellDialect.h"

#include <string_view>

namespace corvellane {
namespace {

// One line, so that the shell's messages about the command count its lines from 1. Each loop takes the arguments
// one by one from the front and puts them back at the end.
constexpr std::string_view prelude
    = R"(umask 022; )"
      R"(ln() { for a do shift; [ "$a" != -h ] || a=-n; set -- "$@" "$a"; done; command ln "$@"; }; )"
      R"(cp() { n=$#; for a do shift; n=$((n - 1)); case $n$a in 0*) ;; */) a=$a. ;; esac; )"
      R"(set -- "$@" "$a"; done; command cp "$@"; }; )"
      R"(echo() { printf '%b\n' "$*"; }; )";

} // namespace

std::string inBsdDialect(const std::string& command)
{
    return std::string(prelude) + command;
}

} // namespace corvellane
