#include "platform/posix/WorkMeter.h"

#include "install/InstallScript.h"
#include "platform/script/Parser.h"
#include "tests/ScratchFolder.h"

#include <algorithm>
#include <thread>

namespace corvellane {
namespace {

class WorkMeterTest : public testing::Test {
protected:
    WorkMeterTest()
    {
        // Between them, the copies weigh so much that the other commands do not count.
        write("from/a/Small.plugin/file", smallSize);
        write("from/b/Large \"$\".plugin/in/file", largeSize / 2);
        write("from/b/Large \"$\".plugin/in/other", largeSize / 2);
    }

    void write(const std::string& name, std::uintmax_t size) const
    {
        scratch.write(name, "");
        std::filesystem::resize_file(scratch.path() + "/" + name, size);
    }

    std::string copy(const std::string& from) const
    {
        return "cp -R -f \"" + scratch.path() + "/from/" + from + "\" \"" + scratch.path() + "/to/\"";
    }

    /// The part that is done comes to be `expected`, to the hundredth, in a few seconds.
    void expectPart(double expected, const char* why = "")
    {
        double part = -1;
        for (int tries = 0; tries < 500 && std::abs(part - expected) > 0.005; ++tries) {
            part = meter.partDone().value_or(-1);
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        EXPECT_NEAR(part, expected, 0.005) << why;
    }

    static constexpr std::uintmax_t smallSize = 1'000'000'000;
    static constexpr std::uintmax_t largeSize = 3'000'000'000;
    ScratchFolder scratch;
    WorkMeter meter;
};

TEST_F(WorkMeterTest, knowsOfNoWorkWithoutCommands)
{
    EXPECT_EQ(meter.partDone(), std::nullopt);
    meter.begin({});
    EXPECT_EQ(meter.partDone(), std::nullopt);
    meter.begin({"true", ""});
    EXPECT_EQ(meter.partDone(), 0);
    meter.start(1);
    expectPart(0.5);
    meter.end();
    EXPECT_EQ(meter.partDone(), std::nullopt);
}

TEST_F(WorkMeterTest, countsCopiesByTheirBytesAndWhatTheyHaveWritten)
{
    const std::string before = "to/Large \"$\".plugin/in/file";
    const std::string written = "to/Large \"$\".plugin/in/other";
    write(before, largeSize / 2);
    using Clock = std::filesystem::file_time_type::clock;
    std::filesystem::last_write_time(scratch.path() + "/" + before, Clock::now() - std::chrono::minutes(1));
    meter.begin({"mkdir x", copy("a/Small.plugin"), copy(R"(b/Large \"\$\".plugin)"), "rm x", copy("gone")});
    meter.start(0);
    expectPart(0);
    meter.start(1);
    write("to/Small.plugin/file", smallSize);
    expectPart(0.25);
    meter.start(2);
    EXPECT_NEAR(meter.partDone().value(), 0.25, 0.005) << "what the last one has written is its own";
    expectPart(0.25, "what was there before the copy does not count");
    write(written, largeSize / 3);
    expectPart(0.5);
    write(written, 0);
    for (int look = 0; look < 20; ++look) {
        expectPart(0.5, "no work is undone");
    }
    write(written, largeSize * 2);
    expectPart(1, "no copy writes more than its source");
    meter.start(3);
    expectPart(1);
    meter.begin({copy("a/Small.plugin/"), "true"});
    EXPECT_EQ(meter.partDone(), 0) << "another script begins anew";
    write("to/file", smallSize / 2);
    std::filesystem::remove_all(scratch.path() + "/to/Small.plugin");
    std::filesystem::remove_all(scratch.path() + "/to/Large \"$\".plugin");
    meter.start(0);
    expectPart(0.5, "the contents of a folder go into the target itself");
}

TEST_F(WorkMeterTest, knowsTheCopiesOfAnInstallation)
{
    const std::string to = scratch.path() + "/to/";
    const auto script = script::parse(composeInstallScript(
        {to, to, to, to}, {scratch.path() + "/from/a/Small.plugin", scratch.path() + "/from/b/Large \"$\".plugin"}));
    meter.begin(script->privilegedCommands);
    const auto large = std::ranges::find_if(script->privilegedCommands,
        [](const std::string& command) { return command.find("/from/b/") != std::string::npos; });
    meter.start(static_cast<std::size_t>(large - script->privilegedCommands.begin()));
    expectPart(0.25);
}

} // namespace
} // namespace corvellane
