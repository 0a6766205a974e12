#include "agreement/AgreementFile.h"

#include "agreement/RtfReader.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

namespace corvellane {
namespace {

using FileBytes = std::variant<std::string, std::error_code>;

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

FileBytes lastError()
{
    return std::error_code(errno, std::generic_category());
}

/// Opening what is no regular file could wait for ever, and its size says nothing.
FileBytes readBytes(const std::string& path)
{
    std::error_code error;
    const bool isFile = std::filesystem::is_regular_file(path, error);
    const std::uintmax_t size = isFile ? std::filesystem::file_size(path, error) : 0;
    if (error || !isFile || size > largestRtf) {
        return error ? error : std::make_error_code(std::errc::invalid_argument);
    }
    const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(path.c_str(), "rb"));
    if (file == nullptr) {
        return lastError();
    }
    std::string bytes(static_cast<std::size_t>(size), '\0');
    bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file.get()));
    return std::ferror(file.get()) != 0 ? lastError() : bytes;
}

AgreementFailure failure(const std::string& path, const std::string& reason)
{
    const std::string name = std::filesystem::path(path).filename().string();
    return {"The file “" + name + "” couldn’t be opened" + reason + "."};
}

AgreementFailure failure(const std::string& path, const std::error_code& error)
{
    if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted) {
        return failure(path, " because you don’t have permission to view it");
    }
    return failure(path, error == std::errc::no_such_file_or_directory ? " because there is no such file" : "");
}

} // namespace

std::variant<AttributedText, AgreementFailure> readAgreement(const std::string& path)
{
    const FileBytes bytes = readBytes(path);
    if (const auto* const error = std::get_if<std::error_code>(&bytes)) {
        return failure(path, *error);
    }
    auto text = readRtf(std::get<std::string>(bytes));
    if (const auto* const reason = std::get_if<RtfFailure>(&text)) {
        return failure(path, *reason == RtfFailure::notRtf ? "" : " because it isn’t in the correct format");
    }
    return std::move(std::get<AttributedText>(text));
}

} // namespace corvellane
