#include "bench/RtfSamples.h"
#include "rtf/Reader.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

// How many instructions it takes to read a sample, beside those of one memchr scan of it for each of backslash and the
// braces (scanForControls), each less those of making the sample. cachegrind counts them ("I refs"), so that the
// figures are the same at every run; memchr is the C library's for the processor that cachegrind shows.

namespace corvellane {
namespace {

constexpr std::size_t megabyte = 1'000'000;

struct Named {
    std::string_view name;
    std::string (*make)(std::size_t size);
};

constexpr std::array samples{Named{"agreement", agreementSample}, Named{"multiByte", multiByteSample},
    Named{"list", listSample}, Named{"rawMultiByte", rawMultiByteSample}, Named{"table", tableSample}};

/// What a process of its own is to do with a sample.
constexpr std::array works{"make", "scan", "read"};

std::size_t resultOf(std::string_view work, const std::string& bytes)
{
    if (work == "scan") {
        return scanForControls(bytes);
    }
    return work == "read" ? rtf::read(bytes).value().text.size() : bytes.size();
}

int carryOut(std::string_view work, std::string_view name, std::size_t megabytes)
{
    const auto* const sample = std::ranges::find(samples, name, &Named::name);
    if (sample == samples.end()) {
        return EXIT_FAILURE;
    }
    std::printf("%zu\n", resultOf(work, sample->make(megabytes * megabyte)));
    return EXIT_SUCCESS;
}

/// -1 where they cannot be counted.
std::int64_t instructions(const std::string& work, const Named& sample, int megabytes)
{
    const std::string command = "valgrind --tool=cachegrind --cache-sim=no --cachegrind-out-file=/dev/null '"
        + std::filesystem::read_symlink("/proc/self/exe").string() + "' " + work + ' ' + std::string(sample.name) + ' '
        + std::to_string(megabytes) + " 2>&1";
    const std::unique_ptr<FILE, int (*)(FILE*)> output(popen(command.c_str(), "r"), pclose); // NOLINT(cert-env33-c)
    std::int64_t count = -1;
    for (std::array<char, 256> line{}; output != nullptr && std::fgets(line.data(), line.size(), output.get());) {
        const char* next = std::strstr(line.data(), "refs:");
        for (count = next != nullptr ? 0 : count; next != nullptr && *next != '\0'; ++next) {
            count = *next >= '0' && *next <= '9' ? count * 10 + (*next - '0') : count;
        }
    }
    return count;
}

struct Counts {
    double scan = 0;
    double read = 0;
};

Counts measure(const Named& sample, int megabytes)
{
    std::array<double, works.size()> counts{};
    for (std::size_t work = 0; work < works.size(); ++work) {
        counts.at(work) = static_cast<double>(instructions(works.at(work), sample, megabytes));
    }
    return {.scan = counts[1] - counts[0], .read = counts[2] - counts[0]};
}

void report(const Named& sample)
{
    const Counts ten = measure(sample, 10);
    const Counts hundred = measure(sample, 100);
    std::printf(
        "%-14s scan %8.2f M, read %8.2f M, %5.2f times; of 100 MB, reading takes %5.2f times as many as of 10\n",
        std::string(sample.name).c_str(), ten.scan / 1e6, ten.read / 1e6, ten.read / ten.scan, hundred.read / ten.read);
}

} // namespace
} // namespace corvellane

int main(int count, char** arguments)
{
    using namespace corvellane;
    if (count == 4) {
        return carryOut(arguments[1], arguments[2], std::strtoull(arguments[3], nullptr, 10));
    }
    if (instructions("make", samples[0], 0) < 0) {
        std::fputs("valgrind does not run here\n", stderr);
        return EXIT_FAILURE;
    }
    for (const Named& sample : samples) {
        report(sample);
    }
    return EXIT_SUCCESS;
}
