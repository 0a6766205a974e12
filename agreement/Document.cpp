#include "agreement/Document.h"

#include "base/PathNames.h"
#include "platform/Console.h"
#include "platform/Files.h"
#include "platform/Resources.h"
#include "rtf/Reader.h"

#include <utility>

namespace corvellane {
namespace {

/// What is no rich text at all is no more than a file that does not open.
Failure asFailure(const std::string& path, rtf::ReadFailure reason)
{
    const char* const why = reason == rtf::ReadFailure::incomplete ? " because it isn’t in the correct format" : "";
    return {.message = "The file “" + std::string(lastPathComponent(path)) + "” couldn’t be opened" + why + "."};
}

} // namespace

Expected<rtf::AttributedText> readAgreement(const Files& files, const std::string& path)
{
    return files.read(path, rtf::largestInput).and_then([&](std::string&& bytes) {
        return rtf::readAway(std::move(bytes)).map_error([&](rtf::ReadFailure reason) {
            return asFailure(path, reason);
        });
    });
}

Document::Document(const Resources& resources, const Files& files, Console& console)
    : resources_(resources)
    , files_(files)
    , console_(console)
{
}

void Document::load(const std::string& file)
{
    const auto path = resources_.file(file, "rtf");
    auto text = path ? readAgreement(files_, *path) : Unexpected({.message = "File not found"});
    if (text) {
        data.set(*std::move(text));
    } else {
        console_.print(text.error().message);
    }
}

} // namespace corvellane
