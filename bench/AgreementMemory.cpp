#include "agreement/Document.h"
#include "bench/RtfSamples.h"
#include "platform/posix/PosixFiles.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace corvellane {
namespace {

using Sample = std::string (*)(std::size_t);

constexpr std::size_t sampleSize = 10'000'000;

void writeSample(const std::filesystem::path& path, Sample sample)
{
    std::ofstream(path, std::ios::binary) << sample(sampleSize);
}

/// The bytes that a process has held at most after it has read the file; the process does nothing else.
long peakMemory(const std::filesystem::path& path)
{
    const pid_t child = fork();
    if (child == 0) {
        _exit(readAgreement(PosixFiles(), path.string()) ? 0 : 1);
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    return status == 0 ? usage.ru_maxrss * 1024 : -1;
}

void report(const char* name, Sample sample)
{
    const auto path = std::filesystem::temp_directory_path() / "corvellane-agreement-memory.rtf";
    if (const pid_t writer = fork(); writer == 0) {
        writeSample(path, sample);
        _exit(0);
    } else {
        waitpid(writer, nullptr, 0);
    }
    const long peak = peakMemory(path);
    const auto size = static_cast<double>(std::filesystem::file_size(path));
    std::printf("%-14s %9.0f bytes, peak %9ld bytes, %.2f times the file\n", name, size, peak,
        static_cast<double>(peak) / size);
    std::filesystem::remove(path);
}

} // namespace
} // namespace corvellane

int main()
{
    // What this process has held is counted for its children too: the samples are made in children of their own.
    corvellane::report("agreement", corvellane::agreementSample);
    corvellane::report("multiByte", corvellane::multiByteSample);
    corvellane::report("rawMultiByte", corvellane::rawMultiByteSample);
    corvellane::report("list", corvellane::listSample);
    corvellane::report("table", corvellane::tableSample);
    corvellane::report("emptyLines", corvellane::emptyLines);
    corvellane::report("fontEntries", corvellane::fontEntries);
    corvellane::report("differentLooks", corvellane::differentLooks);
    corvellane::report("changingLooks", corvellane::changingLooks);
    corvellane::report("changingGroups", corvellane::changingGroups);
    corvellane::report("changingLines", corvellane::changingLines);
    corvellane::report("rawKatakana", corvellane::rawKatakana);
    corvellane::report("rawPictographs", corvellane::rawPictographs);
    return 0;
}
