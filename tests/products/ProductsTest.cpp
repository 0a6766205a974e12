#include "products/Discovery.h"

#include "base/PathNames.h"
#include "products/DisplayOrder.h"
#include "products/Product.h"

#include "platform/posix/PosixFiles.h"
#include "tests/FakePlatform.h"
#include "tests/ScratchFolder.h"

#include <gmock/gmock.h>

#include <thread>

namespace corvellane {
namespace {

using testing::ElementsAre;

TEST(Product, joinsTheFirstFolderOfTheSystemAndItsTailOnce)
{
    const FakeFolders folders;
    const Product product(folders);
    EXPECT_EQ(folders.requests, 0);
    EXPECT_EQ(product.appCorvellane(), "/Applications/Corvellane/");
    EXPECT_EQ(product.appSuppCorvellaneVideo(),
        "/Library/Application Support/Adobe/Common/Plug-ins/7.0/MediaCore/Corvellane/");
    EXPECT_EQ(product.appSuppCorvellane(), "/Library/Application Support/Adobe/Plug-Ins/CC/Corvellane/");
    EXPECT_EQ(product.userAppSuppLR(), "/Users/user/Library/Application Support/Adobe/Lightroom/");
    EXPECT_EQ(product.applications() + product.applicationSupport() + product.userApplicationSupport(),
        "/Applications/Library/Application Support/Users/user/Library/Application Support");
    EXPECT_EQ(product.appCorvellane(), "/Applications/Corvellane/");
    EXPECT_EQ(folders.requests, 3);
}

TEST(Product, keepsTheBareTailsWhenTheSystemNamesNoFolder)
{
    FakeFolders folders;
    folders.paths.clear();
    const Product product(folders);
    EXPECT_EQ(product.applications(), "");
    EXPECT_EQ(product.appCorvellane(), "/Corvellane/");
    EXPECT_EQ(product.userAppSuppLR(), "/Adobe/Lightroom/");
}

TEST(Product, asksOnceWhenSeveralThreadsReadFirst)
{
    const FakeFolders folders;
    const Product product(folders);
    std::vector<std::thread> readers;
    for (int count = 0; count < 8; ++count) {
        readers.emplace_back([&] { EXPECT_EQ(product.appCorvellane(), "/Applications/Corvellane/"); });
    }
    for (std::thread& reader : readers) {
        reader.join();
    }
    EXPECT_EQ(folders.requests, 1);
}

TEST(DisplayOrder, comparesComposedNamesAndLeavesThemAsTheyAre)
{
    const std::string decomposed = "/p/Cafe\xCC\x81";
    const std::string composed = "/p/Caf\xC3\xA9";
    const std::string notUtf8 = "/p/\xFFx";
    EXPECT_THAT(inDisplayOrder({"/p/b", "/p/A", "/p/a", "/p/Suite/", "/p/Cafz", decomposed, composed, notUtf8, "/o/a"}),
        ElementsAre("/p/A", "/p/Cafz", decomposed, composed, "/p/Suite/", "/o/a", "/p/a", "/p/b", notUtf8));
    EXPECT_EQ(lastPathComponent("/p/Suite/"), "Suite");
    EXPECT_EQ(lastPathComponent("name"), "name");
}

TEST(Discovery, findsRealFoldersByTheBytesOfTheirNames)
{
    const ScratchFolder scratch;
    const std::string notUtf8 = "bytes \xFF\xFE";
    for (const std::string& name : {std::string("100%25 Film"), std::string("Z"), std::string(".hidden"),
             std::string("a.plugin"), std::string("line\nfeed"), notUtf8}) {
        std::filesystem::create_directories(scratch.path() + "/" + name);
    }
    scratch.write("file.plugin", "");
    std::filesystem::create_directory_symlink("Z", scratch.path() + "/link");
    std::vector<std::string> names;
    const auto found = foldersIn(PosixFiles(), scratch.path());
    for (const std::string& path : *found) {
        EXPECT_EQ(path, scratch.path() + "/" + std::string(lastPathComponent(path)));
        names.emplace_back(lastPathComponent(path));
    }
    EXPECT_THAT(names, ElementsAre(".hidden", "100%25 Film", "Z", "a.plugin", notUtf8, "line\nfeed"));
}

TEST(Discovery, saysWhyAFolderCannotBeListed)
{
    const ScratchFolder scratch;
    scratch.write("Products", "a file");
    const auto failureOf = [&](const std::string& name) {
        const auto found = foldersIn(PosixFiles(), scratch.path() + "/" + name);
        return found.error().message;
    };
    EXPECT_EQ(failureOf("Gone"), "The folder “Gone” doesn’t exist.");
    EXPECT_EQ(failureOf("Products"), "The file “Products” couldn’t be opened.");
}

} // namespace
} // namespace corvellane
