#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace corvellane {

/// An empty folder of a test's own, removed with everything in it at the end.
class ScratchFolder {
public:
    ScratchFolder()
    {
        std::string name = testing::TempDir() + "corvellane-XXXXXX";
        path_ = mkdtemp(name.data());
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder()
    {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
    }

    const std::string& path() const { return path_; }

    /// Writes a file, and the folders above it, below the scratch folder.
    void write(const std::string& name, const std::string& contents) const
    {
        const std::filesystem::path file = path_ + "/" + name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << contents;
    }

private:
    std::string path_;
};

inline std::string readFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace corvellane
