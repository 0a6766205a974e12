#include "platform/qt/FreedesktopWorkspace.h"

#include "tests/ScratchFolder.h"
#include "tests/UrlOpener.h"

namespace corvellane {
namespace {

TEST(FreedesktopWorkspace, opensOnlyWhatAProgramIsRegisteredFor)
{
    const ScratchFolder home;
    home.write("applications/mimeinfo.cache", "[MIME Cache]\nx-scheme-handler/x-settings.known=settings.desktop;\n");
    qputenv("XDG_DATA_HOME", QByteArray::fromStdString(home.path()));
    const UrlOpener registered("x-settings.known");
    const UrlOpener unregistered("x-settings");
    FreedesktopWorkspace workspace;
    EXPECT_TRUE(workspace.openUrl("x-settings.known:pane?Privacy"));
    EXPECT_EQ(registered.opened, QStringList("x-settings.known:pane?Privacy"));
    for (const char* const address : {"x-settings:pane", "no address", ""}) {
        EXPECT_FALSE(workspace.openUrl(address)) << address;
    }
    EXPECT_TRUE(unregistered.opened.isEmpty());
    qunsetenv("XDG_DATA_HOME");
}

} // namespace
} // namespace corvellane
