#include "platform/qt/FreedesktopWorkspace.h"

#include <QFile>
#include <QStandardPaths>
#include <QUrl>

#include <algorithm>

namespace corvellane {
namespace {

bool mentions(const QString& path, const QByteArray& entry)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && ('\n' + file.readAll()).contains('\n' + entry + '=');
}

/// Asked first, because the desktop's opener hands an address that nobody knows to a web browser and calls it opened.
bool isHandled(const QString& scheme)
{
    const QByteArray entry = "x-scheme-handler/" + scheme.toUtf8();
    QStringList files
        = QStandardPaths::locateAll(QStandardPaths::GenericConfigLocation, QStringLiteral("mimeapps.list"));
    for (const char* const name : {"mimeapps.list", "mimeinfo.cache"}) {
        files += QStandardPaths::locateAll(QStandardPaths::ApplicationsLocation, QString::fromLatin1(name));
    }
    return std::ranges::any_of(files, [&](const QString& file) { return mentions(file, entry); });
}

} // namespace

bool FreedesktopWorkspace::openUrl(const std::string& url)
{
    return isHandled(QUrl(QString::fromStdString(url)).scheme()) && QtWorkspace::openUrl(url);
}

} // namespace corvellane
