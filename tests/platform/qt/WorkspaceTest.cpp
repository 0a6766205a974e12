#include "platform/qt/QtWorkspace.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QObject>
#include <QTemporaryDir>
#include <QUrl>

#include <gtest/gtest.h>

namespace corvellane {
namespace {

/// Stands in for the program of one scheme.
class Opener : public QObject {
    Q_OBJECT

public:
    explicit Opener(const QString& scheme)
        : scheme_(scheme)
    {
        QDesktopServices::setUrlHandler(scheme, this, "open");
    }
    ~Opener() override { QDesktopServices::unsetUrlHandler(scheme_); }

    QStringList opened;

public slots:
    void open(const QUrl& url) { opened.append(url.toString()); }

private:
    QString scheme_;
};

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
    Opener opener(QStringLiteral("x-settings.known"));
    Opener unregistered(QStringLiteral("x-settings"));
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

#include "WorkspaceTest.moc"
