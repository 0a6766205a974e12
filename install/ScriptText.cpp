#include "install/ScriptText.h"

#include <utility>

namespace corvellane {
namespace {

constexpr const char* closing = R"(
on error errMsg
return errMsg
end try
return "Ok")";

} // namespace

void ScriptText::append(std::initializer_list<std::string_view> command, std::string_view space)
{
    text_ += "do shell script \"";
    for (const std::string_view part : command) {
        text_ += part;
    }
    text_.append("\"").append(space).append("with administrator privileges\n");
}

std::string ScriptText::finish() &&
{
    return std::move(text_ += closing);
}

} // namespace corvellane
