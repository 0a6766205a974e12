#include "tools/UnicodeNames.h"

#include <utf8proc.h>

#include <cstdlib>
#include <memory>

namespace corvellane {
namespace {

std::string mapped(const std::string& name, int options)
{
    utf8proc_uint8_t* result = nullptr;
    // NOLINTNEXTLINE(clang-analyzer-optin.core.EnumCastOutOfRange): the library takes sets of them in this type
    const auto set = static_cast<utf8proc_option_t>(options);
    const auto length = utf8proc_map(reinterpret_cast<const utf8proc_uint8_t*>(name.data()),
        static_cast<utf8proc_ssize_t>(name.size()), &result, set);
    const std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> owned(result, &std::free);
    return length < 0 ? name : std::string(reinterpret_cast<const char*>(result), static_cast<std::size_t>(length));
}

} // namespace

std::string composed(const std::string& name)
{
    return mapped(name, UTF8PROC_STABLE | UTF8PROC_COMPOSE);
}

std::string withoutCapitals(const std::string& name)
{
    return mapped(name, UTF8PROC_STABLE | UTF8PROC_COMPOSE | UTF8PROC_CASEFOLD);
}

} // namespace corvellane
