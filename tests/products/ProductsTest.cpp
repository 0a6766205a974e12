#include "products/DisplayOrder.h"
#include "products/Product.h"

#include "tests/FakePlatform.h"

#include <gmock/gmock.h>

#include <thread>

namespace corvellane {
namespace {

TEST(Product, joinsTheFirstFolderOfTheSystemAndItsTailOnce)
{
    FakeFolders folders;
    const Product product(folders);
    EXPECT_EQ(folders.requests, 0);
    EXPECT_EQ(product.appCorvellane(), "/Applications/Corvellane/");
    EXPECT_EQ(product.appSuppCorvellaneVideo(),
        "/Library/Application Support/Adobe/Common/Plug-ins/7.0/MediaCore/Corvellane/");
    EXPECT_EQ(product.appSuppCorvellane(), "/Library/Application Support/Adobe/Plug-Ins/CC/Corvellane/");
    EXPECT_EQ(product.userAppSuppLR(), "/Users/user/Library/Application Support/Adobe/Lightroom/");
    EXPECT_EQ(product.applications() + product.applicationSupport() + product.userApplicationSupport(),
        "/Applications/Library/Application Support/Users/user/Library/Application Support");
    EXPECT_EQ(folders.requests, 3);
    folders.paths.clear();
    EXPECT_EQ(Product(folders).appCorvellane(), "/Corvellane/") << "the bare tail where the system names no folder";
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
        testing::ElementsAre("/p/A", "/p/Cafz", decomposed, composed, "/p/Suite/", "/o/a", "/p/a", "/p/b", notUtf8));
}

} // namespace
} // namespace corvellane
