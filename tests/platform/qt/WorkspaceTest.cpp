#include "platform/qt/QtWorkspace.h"

#include "tests/UrlOpener.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace corvellane {
namespace {

void registerScheme(const QTemporaryDir& home, const QByteArray& scheme)
{
    QDir(home.path()).mkpath(QStringLiteral("applications"));
    QFile cache(home.filePath(QStringLiteral("applications/mimeinfo.cache")));
    cache.open(QIODevice::WriteOnly);
    cache.write("[MIME Cache]\nx-scheme-handler/" + scheme + "=settings.desktop;\n");
}

TEST(QtWorkspace, opensOnlyWhatAProgramIsRegisteredFor)
{
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", home.path().toUtf8());
    UrlOpener opener(QStringLiteral("x-settings.known"));
    UrlOpener unregistered(QStringLiteral("x-settings"));
    registerScheme(home, "x-settings.known");
    QtWorkspace workspace;
    EXPECT_TRUE(workspace.openUrl("x-settings.known:pane?Privacy"));
    EXPECT_EQ(opener.opened, QStringList("x-settings.known:pane?Privacy"));
    EXPECT_FALSE(workspace.openUrl("x-settings:pane"));
    EXPECT_TRUE(unregistered.opened.isEmpty());
    EXPECT_FALSE(workspace.openUrl("no address"));
    EXPECT_FALSE(workspace.openUrl(""));
    qunsetenv("XDG_DATA_HOME");
}

} // namespace
} // namespace corvellane
