#include "view/Action.h"

#include <gtest/gtest.h>

#include <string>

namespace corvellane::view {
namespace {

struct Lamp {
    void light() { ++brightness; }
    void set(const std::string& wanted) { brightness = std::stoi(wanted); }
    int brightness = 0;
};

bool isLit(const Lamp& lamp)
{
    return lamp.brightness > 0;
}

using Press = Action<void()>;

TEST(Action, performsItsOperationOnItsReceiver)
{
    Lamp lamp;
    const auto ask = Action<bool()>::calling<&isLit>(lamp);
    EXPECT_FALSE(ask());
    Press::calling<&Lamp::light>(lamp)();
    EXPECT_TRUE(ask());
    Action<void(const std::string&)>::calling<&Lamp::set>(lamp)("7");
    EXPECT_EQ(lamp.brightness, 7);
}

TEST(Action, isEqualToWhatWouldDoTheSame)
{
    Lamp lamp;
    Lamp other;
    const Press light = Press::calling<&Lamp::light>(lamp);
    EXPECT_EQ(light, Press::calling<&Lamp::light>(lamp));
    EXPECT_NE(light, Press::calling<&Lamp::light>(other));
    EXPECT_NE(light, Press());
    EXPECT_TRUE(light);
    EXPECT_FALSE(Press());
}

} // namespace
} // namespace corvellane::view
