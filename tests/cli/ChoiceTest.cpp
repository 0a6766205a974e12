#include "cli/Choice.h"
#include "tests/FakePlatform.h"

#include <gmock/gmock.h>

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

namespace corvellane {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class ChoiceTest : public testing::Test {
protected:
    ChoiceTest()
    {
        platform.addProduct("Photo", {"b.plugin", "a.plugin"});
        platform.addProduct("caf\u00e9\n", {"Tessellane"});
        platform.addProduct("For Lightroom", {"One"});
    }

    /// The elements of these products, or why there are none.
    std::vector<std::string> elementsOf(const std::vector<std::string>& names)
    {
        Order order;
        const auto refused = chooseElements(order, platform.resources, platform.files, names);
        return refused ? std::vector{std::to_string(static_cast<int>(refused->status)) + " " + refused->message}
                       : order.elements;
    }

    FakePlatform platform;
};

TEST_F(ChoiceTest, ofProductsIsThatOfTheirNamesInTheOrderOfInstallation)
{
    const std::string root = "/Resources/Products/";
    const std::string cafe = root + "caf\u00e9\n/Tessellane";
    EXPECT_THAT(elementsOf({}), testing::SizeIs(4));
    const std::vector<std::string> two{cafe, root + "For Lightroom/One"};
    EXPECT_THAT(elementsOf({"For Lightroom", "caf\u00e9\n"}), testing::UnorderedElementsAreArray(two));
    EXPECT_EQ(
        elementsOf({"For Lightroom", "caf\u00e9\n"}), elementsOf({"caf\u00e9\n", "For Lightroom", "For Lightroom"}));
    EXPECT_THAT(elementsOf({"cafe\u0301\n"}), ElementsAre(cafe)) << "what looks the same";
    EXPECT_THAT(elementsOf({"caf\u00e9\\n"}), ElementsAre(cafe)) << "as it is printed";
    for (const std::string name : {"photo", "Phot", "", "Photo/", "Photo\n"}) {
        EXPECT_THAT(
            elementsOf({"Photo", name}), ElementsAre("2 there is no product “" + name + "”; “list” names them"));
    }
}

TEST_F(ChoiceTest, ofWhatIsNotThereSaysWhatToDo)
{
    const std::string advice = "Unpack or install the installer anew, as root.";
    platform.files.folders.erase("/Resources/Products/Photo");
    EXPECT_THAT(elementsOf({}), ElementsAre("1 no folder /Resources/Products/Photo " + advice));
    EXPECT_THAT(elementsOf({"For Lightroom"}), ElementsAre("/Resources/Products/For Lightroom/One"));
    platform.files.folders["/Resources/Products"].clear();
    EXPECT_THAT(elementsOf({}), ElementsAre("1 There is no product in this installer. " + advice));
    platform.resources.hasFolder = false;
    EXPECT_THAT(elementsOf({}), ElementsAre(HasSubstr(advice)));
    EXPECT_THAT(
        whyWithoutLicense(platform.resources).value().message, HasSubstr("CorvellaneEULA.rtf is missing. " + advice));
    platform.resources.files["CorvellaneEULA.rtf"] = "/x";
    EXPECT_FALSE(whyWithoutLicense(platform.resources));
}

TEST_F(ChoiceTest, ofUsersIsOnceEachInTheirOrder)
{
    const std::string own = realUser().name;
    ASSERT_TRUE(userNamed(own));
    Order order;
    EXPECT_FALSE(choosePersons(order, {"daemon", own, "daemon", own}, false));
    ASSERT_EQ(order.persons.size(), own == "daemon" ? 1U : 2U);
    EXPECT_EQ(order.persons[0].account.name, "daemon");
    EXPECT_EQ(order.persons[0].hosts.lightroom,
        order.persons[0].account.home + "/Library/Application Support/Adobe/Lightroom/");
    EXPECT_EQ(order.persons[1].account.id, getuid());
    for (const std::string name : {"nobody there", "", "0", "daemon "}) {
        EXPECT_EQ(choosePersons(order, {own, name}, true).value().status, Status::wrongUsage) << name;
    }
    if (geteuid() == 0) {
        setenv("SUDO_UID", std::to_string(getpwnam("daemon")->pw_uid).c_str(), 1);
        Order sudos;
        EXPECT_FALSE(choosePersons(sudos, {}, true));
        unsetenv("SUDO_UID");
        EXPECT_THAT(
            sudos.persons, ElementsAre(testing::Field(&Person::account, testing::Field(&UserAccount::name, "daemon"))));
    } else {
        EXPECT_EQ(choosePersons(order, {"daemon"}, true).value().status, Status::notAuthorized);
    }
}

TEST_F(ChoiceTest, ofAUserWhoseHomeIsAwayIsRefusedWhereItMatters)
{
    Order order{"", {"/Products/Photo/x"}, {{{"anna", "/", 1}, {}}, {{"bert", "/home is away", 2}, {}}}};
    EXPECT_FALSE(whyHomeless(order)) << "nothing goes there";
    order.elements.emplace_back("/Products/For Lightroom/x");
    EXPECT_EQ(whyHomeless(order).value().message,
        "the home “/home is away” of the user bert is not there; mount it, or leave that user out");
}

} // namespace
} // namespace corvellane
